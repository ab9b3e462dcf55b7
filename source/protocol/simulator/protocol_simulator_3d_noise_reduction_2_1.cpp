#include <qv_database_c/database_3d_noise_reduction_2_1.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabase3DNoiseReduction_2_1_t;

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

constinit const TableOf<Record> k3DNoiseReduction_2_1{"QvDatabaseProtocolSimulator_3DNoiseReduction_2_1", __FILE__,
                                                      kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabase3DNoiseReduction_2_1_t* pConfig)
{
    return readRecord(simulator::k3DNoiseReduction_2_1, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_3DNoiseReduction_2_1_serialize(QvDatabase3DNoiseReduction_2_1_t* pConfig,
                                                               QvJsonValue_t* pValue)
{
    return writeRecord(simulator::k3DNoiseReduction_2_1, pConfig, pValue);
}
