#include <qv_database_c/database_2d_noise_reduction_5_2.h>

#include <cstring>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabase2DNoiseReduction_5_2_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(lumaCtrolEnable),
    QV_FIELD(preGammaStrength),
    QV_FIELD(strength),
    QV_FIELD(sigma),
    QV_FIELD(sigmaRange),
    QV_FIELD(sigmaOffset),
    QV_FIELD(lumaCurveX),
    QV_FIELD(lumaCurveY),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> k2DNoiseReduction_5_2 = QV_TABLE("QvDatabase2DNoiseReduction_5_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabase2DNoiseReduction_5_2, tuning::k2DNoiseReduction_5_2)

int QvDatabase2DNoiseReduction_5_2_reset(QvDatabase2DNoiseReduction_5_2_t* pConfig)
{
    // Goes straight to the copy: callers answer for the pointer.
    std::memset(pConfig, 0, sizeof *pConfig);
    return kSuccess;
}
