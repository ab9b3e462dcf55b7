#include <qv_database_c/database_tile.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseTile_t;

constexpr Field kRows[] = {
    QV_FIELD(joint),
    QV_FIELD(numberX),
    QV_FIELD(numberY),
    QV_FIELD(operation),
};

Record default_()
{
    Record record{};
    record.joint = 1;
    return record;
}

} // namespace

constinit const TableOf<Record> kTile{"QvDatabaseTile", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseTile_parse(QvJsonValue_t* pValue, QvDatabaseTile_t* pConfig)
{
    return readRecord(tuning::kTile, pValue, pConfig);
}

int QvDatabaseTile_serialize(QvDatabaseTile_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kTile, pConfig, pValue);
}

int QvDatabaseTile_reset(QvDatabaseTile_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}
