#include <qv_database_c/database_compand_1_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseCompand_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(expandCurveX),
    QV_FIELD(expandCurveY),
};

} // namespace

constinit const TableOf<Record> kCompand_1_1{"QvDatabaseCompand_1_1", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseCompand_1_1_parse(QvJsonValue_t* pValue, QvDatabaseCompand_1_1_t* pConfig)
{
    return readRecord(tuning::kCompand_1_1, pValue, pConfig);
}

int QvDatabaseCompand_1_1_serialize(QvDatabaseCompand_1_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kCompand_1_1, pConfig, pValue);
}

int QvDatabaseCompand_1_1_reset(QvDatabaseCompand_1_1_t* pConfig)
{
    return clearRecord(pConfig);
}
