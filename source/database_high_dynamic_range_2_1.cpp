#include <qv_database_c/database_high_dynamic_range_2_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseHighDynamicRange_2_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),    QV_FIELD(ratio),  QV_FIELD(transRange),   QV_FIELD(colorWeight),
    QV_FIELD(extendBit), QV_FIELD(bypass), QV_FIELD(bypassSelect),
};

} // namespace

constinit const TableOf<Record> kHighDynamicRange_2_1{"QvDatabaseHighDynamicRange_2_1", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseHighDynamicRange_2_1_parse(QvJsonValue_t* pValue, QvDatabaseHighDynamicRange_2_1_t* pConfig)
{
    return readRecord(tuning::kHighDynamicRange_2_1, pValue, pConfig);
}

int QvDatabaseHighDynamicRange_2_1_serialize(QvDatabaseHighDynamicRange_2_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHighDynamicRange_2_1, pConfig, pValue);
}

int QvDatabaseHighDynamicRange_2_1_reset(QvDatabaseHighDynamicRange_2_1_t* pConfig)
{
    return clearRecord(pConfig);
}
