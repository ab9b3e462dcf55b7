#include <qv_database_c/database_auto_work_mode.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseAutoWorkMode_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD_KEY(autoWorkMode, "workMode"),
};

} // namespace

extern constinit const TableOf<Record> kAutoWorkMode = QV_TABLE("QvDatabaseProtocolSimulator_autoWorkMode", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoWorkMode, simulator::kAutoWorkMode)
