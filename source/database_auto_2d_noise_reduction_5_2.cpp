#include <qv_database_c/database_auto_2d_noise_reduction_5_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAuto2DNoiseReduction_5_2_Table_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(gain),
    QV_FIELD(sigma),
    QV_FIELD(strength),
    QV_FIELD(lumaCurveX),
    QV_FIELD(lumaCurveY),
};
// clang-format on

constexpr auto kTable = QV_TABLE("QvDatabaseAuto2DNoiseReduction_5_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAuto2DNoiseReduction_5_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAuto2DNoiseReduction_5_2 =
    QV_TABLE("QvDatabaseAuto2DNoiseReduction_5_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAuto2DNoiseReduction_5_2, tuning::kAuto2DNoiseReduction_5_2)
QV_CLEARED_RESET(QvDatabaseAuto2DNoiseReduction_5_2)
