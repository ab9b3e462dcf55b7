#include <qv_database_c/database_auto_white_balance_3.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseAutoWhiteBalance_3_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD_KEY(roiNum, "roiNumber"),
    QV_FIELD(roiWeight),
    QV_FIELD(roiWindow),
    QV_FIELD(useDamping),
};

} // namespace

extern constinit const TableOf<Record> kAutoWhiteBalance_3 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoWhiteBalance_3", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoWhiteBalance_3, simulator::kAutoWhiteBalance_3)
