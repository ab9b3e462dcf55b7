#include <qv_database_c/database_auto_3d_noise_reduction_2_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAuto3DNoiseReduction_2_1_Table_t;

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

constexpr TableOf<Record> kTable{"QvDatabaseAuto3DNoiseReduction_2_1", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAuto3DNoiseReduction_2_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAuto3DNoiseReduction_2_1{"QvDatabaseAuto3DNoiseReduction_2_1", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAuto3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue, QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig)
{
    return readRecord(tuning::kAuto3DNoiseReduction_2_1, pValue, pConfig);
}

int QvDatabaseAuto3DNoiseReduction_2_1_serialize(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAuto3DNoiseReduction_2_1, pConfig, pValue);
}

int QvDatabaseAuto3DNoiseReduction_2_1_reset(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig)
{
    return clearRecord(pConfig);
}
