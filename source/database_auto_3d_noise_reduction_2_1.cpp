#include <qv_database_c/database_auto_3d_noise_reduction_2_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAuto3DNoiseReduction_2_1_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(motionInv),
    QV_FIELD(delta),
    QV_FIELD(motionDilateEn),
    QV_FIELD(updateTemporal),
    QV_FIELD(strengthCurveTemporal),
    QV_FIELD(temporalCurve),
    QV_FIELD(rangeT),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAuto3DNoiseReduction_2_1", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAuto3DNoiseReduction_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAuto3DNoiseReduction_2_1 =
    QV_TABLE("QvDatabaseAuto3DNoiseReduction_2_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAuto3DNoiseReduction_2_1, tuning::kAuto3DNoiseReduction_2_1)
QV_CLEARED_RESET(QvDatabaseAuto3DNoiseReduction_2_1)
