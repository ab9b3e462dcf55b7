#include <qv_database_c/database_dump.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseDump_t;

constexpr Field kRows[] = {
    QV_HEAP_KEY(pRegisters, "registers", kRegister, QV_COUNTER(registerNumber)),
};

} // namespace

constinit const TableOf<Record> kDump{"QvDatabaseDump", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseDump_parse(QvJsonValue_t* pValue, QvDatabaseDump_t* pConfig)
{
    return readRecord(tuning::kDump, pValue, pConfig);
}

int QvDatabaseDump_serialize(QvDatabaseDump_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kDump, pConfig, pValue);
}

int QvDatabaseDump_reset(QvDatabaseDump_t* pConfig)
{
    // An array that stands is forgotten, not released: it may have been handed on.
    return clearRecord(pConfig);
}
