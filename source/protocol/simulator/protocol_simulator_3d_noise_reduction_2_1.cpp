#include <qv_database_c/database_3d_noise_reduction_2_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabase3DNoiseReduction_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(delta),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(motionDilateEn, "motion_dilate_en").asInteger(),
    QV_FIELD_KEY(motionInv, "motion_inv"),
    QV_FIELD_KEY(rangeT, "range_t"),
    QV_FIELD_KEY(strengthCurveTemporal, "strength_curve_temporal"),
    QV_FIELD(strength),
    QV_FIELD_KEY(temporalCurve, "temporal_curve"),
    QV_FIELD_KEY(updateTemporal, "update_temporal"),
};

} // namespace

extern constinit const TableOf<Record> k3DNoiseReduction_2_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_3DNoiseReduction_2_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_3DNoiseReduction_2_1, simulator::k3DNoiseReduction_2_1)
