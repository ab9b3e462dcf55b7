#include <qv_database_c/database_auto_color_process_1_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoColorProcess_1_2_Table_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(contrast),
    QV_FIELD(bright),
    QV_FIELD(saturation),
    QV_FIELD(hue),
    QV_FIELD(hdr),
};
// clang-format on

constexpr auto kTable = QV_TABLE("QvDatabaseAutoColorProcess_1_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoColorProcess_1_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoColorProcess_1_2 = QV_TABLE("QvDatabaseAutoColorProcess_1_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoColorProcess_1_2, tuning::kAutoColorProcess_1_2)
QV_CLEARED_RESET(QvDatabaseAutoColorProcess_1_2)
