#include <qv_database_c/database_auto_3d_noise_reduction_2_1.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAuto3DNoiseReduction_2_1_Table_t;

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

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAuto3DNoiseReduction_2_1_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAuto3DNoiseReduction_2_1{"QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1",
                                                          __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                               QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig)
{
    return readRecord(simulator::kAuto3DNoiseReduction_2_1, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1_serialize(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig,
                                                                   QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAuto3DNoiseReduction_2_1, pConfig, pValue);
}
