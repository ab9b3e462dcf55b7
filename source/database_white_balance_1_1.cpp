#include <qv_database_c/database_white_balance_1_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseWhiteBalance_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(gain),
};

} // namespace

constinit const TableOf<Record> kWhiteBalance_1_1{"QvDatabaseWhiteBalance_1_1", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseWhiteBalance_1_1_parse(QvJsonValue_t* pValue, QvDatabaseWhiteBalance_1_1_t* pConfig)
{
    return readRecord(tuning::kWhiteBalance_1_1, pValue, pConfig);
}

int QvDatabaseWhiteBalance_1_1_serialize(QvDatabaseWhiteBalance_1_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kWhiteBalance_1_1, pConfig, pValue);
}

int QvDatabaseWhiteBalance_1_1_reset(QvDatabaseWhiteBalance_1_1_t* pConfig)
{
    return clearRecord(pConfig);
}
