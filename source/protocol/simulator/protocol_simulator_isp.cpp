#include <qv_database_c/database_isp.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseIsp_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
};

} // namespace

extern constinit const TableOf<Record> kIsp = QV_TABLE("QvDatabaseProtocolSimulator_isp", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_isp, simulator::kIsp)
QV_CLEARED_RESET(QvDatabaseIsp)
