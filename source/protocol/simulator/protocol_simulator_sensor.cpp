#include <qv_database_c/database_sensor.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseSensor_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
};

} // namespace

extern constinit const TableOf<Record> kSensor = QV_TABLE("QvDatabaseProtocolSimulator_sensor", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_sensor, simulator::kSensor)
