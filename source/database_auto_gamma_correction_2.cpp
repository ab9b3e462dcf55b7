#include <qv_database_c/database_auto_gamma_correction_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoGammaCorrection_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(curve),
    QV_FIELD(gain),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAutoGammaCorrection_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoGammaCorrection_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoGammaCorrection_2 = QV_TABLE("QvDatabaseAutoGammaCorrection_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoGammaCorrection_2, tuning::kAutoGammaCorrection_2)
QV_CLEARED_RESET(QvDatabaseAutoGammaCorrection_2)
