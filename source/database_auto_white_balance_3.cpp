#include <qv_database_c/database_auto_white_balance_3.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseAutoWhiteBalance_3_t;

constexpr Field kRows[] = {
    QV_FIELD(enable), QV_FIELD(useDamping), QV_FIELD(roiNum), QV_FIELD(roiWeight), QV_FIELD(roiWindow), QV_FIELD(mode),
};

} // namespace

constinit const TableOf<Record> kAutoWhiteBalance_3{"QvDatabaseAutoWhiteBalance_3", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoWhiteBalance_3_parse(QvJsonValue_t* pValue, QvDatabaseAutoWhiteBalance_3_t* pConfig)
{
    return readRecord(tuning::kAutoWhiteBalance_3, pValue, pConfig);
}

int QvDatabaseAutoWhiteBalance_3_serialize(QvDatabaseAutoWhiteBalance_3_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoWhiteBalance_3, pConfig, pValue);
}

int QvDatabaseAutoWhiteBalance_3_reset(QvDatabaseAutoWhiteBalance_3_t* pConfig)
{
    return clearRecord(pConfig);
}
