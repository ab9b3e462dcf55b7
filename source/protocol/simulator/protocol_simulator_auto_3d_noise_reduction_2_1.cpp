#include <qv_database_c/database_auto_3d_noise_reduction_2_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAuto3DNoiseReduction_2_1_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(delta),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD_KEY(motionDilateEn, "motion_dilate_en"),
    QV_FIELD_KEY(motionInv, "motion_inv"),
    QV_FIELD_KEY(rangeT, "range_t"),
    QV_FIELD(strength),
    QV_FIELD_KEY(strengthCurveTemporal, "strength_curve_temporal"),
    QV_FIELD_KEY(temporalCurve, "temporal_curve"),
    QV_FIELD_KEY(updateTemporal, "update_temporal"),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAuto3DNoiseReduction_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAuto3DNoiseReduction_2_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1, simulator::kAuto3DNoiseReduction_2_1)
