#include <qv_database_c/database_focus_control.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseFocusControl_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(position),
};

} // namespace

constinit const TableOf<Record> kFocusControl{"QvDatabaseFocusControl", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseFocusControl_parse(QvJsonValue_t* pValue, QvDatabaseFocusControl_t* pConfig)
{
    return readRecord(tuning::kFocusControl, pValue, pConfig);
}

int QvDatabaseFocusControl_serialize(QvDatabaseFocusControl_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kFocusControl, pConfig, pValue);
}

int QvDatabaseFocusControl_reset(QvDatabaseFocusControl_t* pConfig)
{
    return clearRecord(pConfig);
}
