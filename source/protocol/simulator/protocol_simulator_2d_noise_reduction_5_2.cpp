#include <qv_database_c/database_2d_noise_reduction_5_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabase2DNoiseReduction_5_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(lumaCtrolEnable, "luma_ctrl_en").asInteger(),
    QV_FIELD_KEY(lumaCurveX, "luma_curve_x"),
    QV_FIELD_KEY(lumaCurveY, "luma_curve_y"),
    QV_FIELD_KEY(preGammaStrength, "pregamma_strength"),
    QV_FIELD(sigma),
    QV_FIELD_KEY(sigmaRange, "sigma_range"),
    QV_FIELD_KEY(sigmaOffset, "sigma_offset"),
    QV_FIELD(strength),
};

} // namespace

extern constinit const TableOf<Record> k2DNoiseReduction_5_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_2DNoiseReduction_5_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_2DNoiseReduction_5_2, simulator::k2DNoiseReduction_5_2)
