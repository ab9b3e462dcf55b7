#include <qv_database_c/database_auto_white_balance_3.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoWhiteBalance_3_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(useDamping),
    QV_FIELD(roiNum),
    QV_FIELD(roiWeight),
    QV_FIELD(roiWindow),
    QV_FIELD(mode),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kAutoWhiteBalance_3 = QV_TABLE("QvDatabaseAutoWhiteBalance_3", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoWhiteBalance_3, tuning::kAutoWhiteBalance_3)
QV_CLEARED_RESET(QvDatabaseAutoWhiteBalance_3)
