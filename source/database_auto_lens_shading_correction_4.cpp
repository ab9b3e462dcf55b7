#include <qv_database_c/database_auto_lens_shading_correction_4.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoLensShadingCorrection_4_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAutoLensShadingCorrection_4", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoLensShadingCorrection_4_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(damping),
    QV_FIELD(interMode),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoLensShadingCorrection_4 =
    QV_TABLE("QvDatabaseAutoLensShadingCorrection_4", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoLensShadingCorrection_4, tuning::kAutoLensShadingCorrection_4)
QV_CLEARED_RESET(QvDatabaseAutoLensShadingCorrection_4)
