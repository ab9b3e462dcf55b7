#include <qv_database_c/database_2d_noise_reduction_5_2.h>

#include <cstring>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabase2DNoiseReduction_5_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),     QV_FIELD(lumaCtrolEnable), QV_FIELD(preGammaStrength), QV_FIELD(strength),   QV_FIELD(sigma),
    QV_FIELD(sigmaRange), QV_FIELD(sigmaOffset),     QV_FIELD(lumaCurveX),       QV_FIELD(lumaCurveY),
};

} // namespace

constinit const TableOf<Record> k2DNoiseReduction_5_2{"QvDatabase2DNoiseReduction_5_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabase2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue, QvDatabase2DNoiseReduction_5_2_t* pConfig)
{
    return readRecord(tuning::k2DNoiseReduction_5_2, pValue, pConfig);
}

int QvDatabase2DNoiseReduction_5_2_serialize(QvDatabase2DNoiseReduction_5_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::k2DNoiseReduction_5_2, pConfig, pValue);
}

int QvDatabase2DNoiseReduction_5_2_reset(QvDatabase2DNoiseReduction_5_2_t* pConfig)
{
    // Goes straight to the copy: callers answer for the pointer.
    std::memset(pConfig, 0, sizeof *pConfig);
    return kSuccess;
}
