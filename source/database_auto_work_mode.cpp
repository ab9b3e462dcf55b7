#include <qv_database_c/database_auto_work_mode.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseAutoWorkMode_t;

constexpr Field kRows[] = {
    QV_FIELD(autoWorkMode),
};

} // namespace

constinit const TableOf<Record> kAutoWorkMode{"QvDatabaseAutoWorkMode", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoWorkMode_parse(QvJsonValue_t* pValue, QvDatabaseAutoWorkMode_t* pConfig)
{
    return readRecord(tuning::kAutoWorkMode, pValue, pConfig);
}

int QvDatabaseAutoWorkMode_serialize(QvDatabaseAutoWorkMode_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoWorkMode, pConfig, pValue);
}

int QvDatabaseAutoWorkMode_reset(QvDatabaseAutoWorkMode_t* pConfig)
{
    return clearRecord(pConfig);
}
