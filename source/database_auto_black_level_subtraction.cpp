#include <qv_database_c/database_auto_black_level_subtraction.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoBlackLevelSubtractionTable_t);

constexpr Field kRows[] = {
    QV_FIELD(bls),
    QV_FIELD(gains),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAutoBlackLevelSubtraction", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoBlackLevelSubtraction_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoBlackLevelSubtraction =
    QV_TABLE("QvDatabaseAutoBlackLevelSubtraction", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoBlackLevelSubtraction, tuning::kAutoBlackLevelSubtraction)
QV_CLEARED_RESET(QvDatabaseAutoBlackLevelSubtraction)
