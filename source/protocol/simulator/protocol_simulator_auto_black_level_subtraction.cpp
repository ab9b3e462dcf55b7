#include <qv_database_c/database_auto_black_level_subtraction.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoBlackLevelSubtractionTable_t);

constexpr Field kRows[] = {
    QV_FIELD(bls),
    QV_FIELD(gains),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoBlackLevelSubtraction", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoBlackLevelSubtraction_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoBlackLevelSubtraction =
    QV_TABLE("QvDatabaseProtocolSimulator_autoBlackLevelSubtraction", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoBlackLevelSubtraction, simulator::kAutoBlackLevelSubtraction)
