#include <qv_database_c/database_color_noise_reduction_2_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseColorNoiseReduction_2_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(sigmaLayer),
    QV_FIELD(strength1),
    QV_FIELD(textureMaskSelect),
};

} // namespace

constinit const TableOf<Record> kColorNoiseReduction_2_2{"QvDatabaseColorNoiseReduction_2_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseColorNoiseReduction_2_2_parse(QvJsonValue_t* pValue, QvDatabaseColorNoiseReduction_2_2_t* pConfig)
{
    return readRecord(tuning::kColorNoiseReduction_2_2, pValue, pConfig);
}

int QvDatabaseColorNoiseReduction_2_2_serialize(QvDatabaseColorNoiseReduction_2_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kColorNoiseReduction_2_2, pConfig, pValue);
}

int QvDatabaseColorNoiseReduction_2_2_reset(QvDatabaseColorNoiseReduction_2_2_t* pConfig)
{
    return clearRecord(pConfig);
}
