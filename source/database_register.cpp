#include <qv_database_c/database_register.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseRegister_t;

constexpr Field kRows[] = {
    QV_FIELD(address),
    QV_FIELD(isReadAction),
    QV_FIELD(type),
    QV_FIELD(value),
};

} // namespace

constinit const TableOf<Record> kRegister{"QvDatabaseRegister", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseRegister_parse(QvJsonValue_t* pValue, QvDatabaseRegister_t* pConfig)
{
    return readRecord(tuning::kRegister, pValue, pConfig);
}

int QvDatabaseRegister_serialize(QvDatabaseRegister_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kRegister, pConfig, pValue);
}

int QvDatabaseRegister_reset(QvDatabaseRegister_t* pConfig)
{
    return clearRecord(pConfig);
}
