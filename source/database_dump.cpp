#include <qv_database_c/database_dump.h>

#include "database_walk.h"

namespace qv::database::tuning {

extern const TableOf<QvDatabaseRegister_t> kRegister;

namespace {

QV_RECORD(QvDatabaseDump_t);

constexpr Field kRows[] = {
    QV_HEAP_KEY(pRegisters, "registers", kRegister, QV_COUNTER(registerNumber)),
};

} // namespace

extern constinit const TableOf<Record> kDump = QV_TABLE("QvDatabaseDump", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseDump, tuning::kDump)

int QvDatabaseDump_reset(QvDatabaseDump_t* pConfig)
{
    // An array that stands is forgotten, not released: it may have been handed on.
    return clearRecord(pConfig);
}
