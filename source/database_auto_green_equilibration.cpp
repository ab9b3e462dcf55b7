#include <qv_database_c/database_auto_green_equilibration.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoGreenEquilibration_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(hdr),
    QV_FIELD(gains),
    QV_FIELD(threshold),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAutoGreenEquilibration", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoGreenEquilibration_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoGreenEquilibration = QV_TABLE("QvDatabaseAutoGreenEquilibration", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoGreenEquilibration, tuning::kAutoGreenEquilibration)
QV_CLEARED_RESET(QvDatabaseAutoGreenEquilibration)
