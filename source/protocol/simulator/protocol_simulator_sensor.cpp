#include <qv_database_c/database_sensor.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseSensor_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
};

} // namespace

constinit const TableOf<Record> kSensor{"QvDatabaseProtocolSimulator_sensor", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_sensor_parse(QvJsonValue_t* pValue, QvDatabaseSensor_t* pConfig)
{
    return readRecord(simulator::kSensor, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_sensor_serialize(QvDatabaseSensor_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kSensor, pConfig, pValue);
}
