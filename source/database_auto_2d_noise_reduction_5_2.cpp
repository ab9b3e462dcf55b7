#include <qv_database_c/database_auto_2d_noise_reduction_5_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAuto2DNoiseReduction_5_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(gain), QV_FIELD(sigma), QV_FIELD(strength), QV_FIELD(lumaCurveX), QV_FIELD(lumaCurveY),
};

constexpr TableOf<Record> kTable{"QvDatabaseAuto2DNoiseReduction_5_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAuto2DNoiseReduction_5_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAuto2DNoiseReduction_5_2{"QvDatabaseAuto2DNoiseReduction_5_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAuto2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue, QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig)
{
    return readRecord(tuning::kAuto2DNoiseReduction_5_2, pValue, pConfig);
}

int QvDatabaseAuto2DNoiseReduction_5_2_serialize(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAuto2DNoiseReduction_5_2, pConfig, pValue);
}

int QvDatabaseAuto2DNoiseReduction_5_2_reset(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig)
{
    return clearRecord(pConfig);
}
