#include <qv_database_c/database_3d_noise_reduction_2_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabase3DNoiseReduction_2_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(motionDilateEn).asInteger(), // a number in the document
    QV_FIELD(strength),
    QV_FIELD(motionInv),
    QV_FIELD(delta),
    QV_FIELD(updateTemporal),
    QV_FIELD(strengthCurveTemporal),
    QV_FIELD(temporalCurve),
    QV_FIELD(rangeT),
};

} // namespace

constinit const TableOf<Record> k3DNoiseReduction_2_1{"QvDatabase3DNoiseReduction_2_1", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabase3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue, QvDatabase3DNoiseReduction_2_1_t* pConfig)
{
    return readRecord(tuning::k3DNoiseReduction_2_1, pValue, pConfig);
}

int QvDatabase3DNoiseReduction_2_1_serialize(QvDatabase3DNoiseReduction_2_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::k3DNoiseReduction_2_1, pConfig, pValue);
}

int QvDatabase3DNoiseReduction_2_1_reset(QvDatabase3DNoiseReduction_2_1_t* pConfig)
{
    return clearRecord(pConfig);
}
