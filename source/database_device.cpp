#include <qv_database_c/database_device.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseDevice_t);

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

extern constinit const TableOf<Record> kDevice = QV_TABLE("QvDatabaseDevice", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseDevice, tuning::kDevice)
QV_DEFAULT_RESET(QvDatabaseDevice, tuning::default_())
