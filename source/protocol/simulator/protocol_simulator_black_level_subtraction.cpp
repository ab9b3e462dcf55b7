#include <qv_database_c/database_black_level_subtraction.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseBlackLevelSubtraction_t);

constexpr Field kRows[] = {
    QV_FIELD(bls),
    QV_FIELD(bitWidth),
};

} // namespace

extern constinit const TableOf<Record> kBlackLevelSubtraction =
    QV_TABLE("QvDatabaseProtocolSimulator_blackLevelSubtraction", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_blackLevelSubtraction, simulator::kBlackLevelSubtraction)
