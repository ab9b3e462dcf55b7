#include <qv_database_c/database_device.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseDevice_t;

constexpr Field kRows[] = {
    QV_FIELD(operation),
    QV_FIELD(portId),
    QV_FIELD(workMode),
};

Record default_()
{
    Record record{};
    record.operation = 1;
    record.portId = 1;
    record.workMode = 1;
    return record;
}

} // namespace

constinit const TableOf<Record> kDevice{"QvDatabaseDevice", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseDevice_parse(QvJsonValue_t* pValue, QvDatabaseDevice_t* pConfig)
{
    return readRecord(tuning::kDevice, pValue, pConfig);
}

int QvDatabaseDevice_serialize(QvDatabaseDevice_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kDevice, pConfig, pValue);
}

int QvDatabaseDevice_reset(QvDatabaseDevice_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}
