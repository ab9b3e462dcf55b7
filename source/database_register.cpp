#include <qv_database_c/database_register.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseRegister_t);

constexpr Field kRows[] = {
    QV_FIELD(address),
    QV_FIELD(isReadAction),
    QV_FIELD(type),
    QV_FIELD(value),
};

} // namespace

extern constinit const TableOf<Record> kRegister = QV_TABLE("QvDatabaseRegister", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseRegister, tuning::kRegister)
QV_CLEARED_RESET(QvDatabaseRegister)
