#include <qv_database_c/database_white_balance_1_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseWhiteBalance_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(gain),
};

} // namespace

extern constinit const TableOf<Record> kWhiteBalance_1_1 = QV_TABLE("QvDatabaseWhiteBalance_1_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseWhiteBalance_1_1, tuning::kWhiteBalance_1_1)
QV_CLEARED_RESET(QvDatabaseWhiteBalance_1_1)
