#include <qv_database_c/database_white_balance_1_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseWhiteBalance_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(gain),
};

} // namespace

extern constinit const TableOf<Record> kWhiteBalance_1_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_whiteBalance_1_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_whiteBalance_1_1, simulator::kWhiteBalance_1_1)
