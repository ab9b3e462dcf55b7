#include <qv_database_c/database_high_dynamic_range_2_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseHighDynamicRange_2_1_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(ratio),
    QV_FIELD(transRange),
    QV_FIELD(colorWeight),
    QV_FIELD(extendBit),
    QV_FIELD(bypass),
    QV_FIELD(bypassSelect),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kHighDynamicRange_2_1 = QV_TABLE("QvDatabaseHighDynamicRange_2_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseHighDynamicRange_2_1, tuning::kHighDynamicRange_2_1)
QV_CLEARED_RESET(QvDatabaseHighDynamicRange_2_1)
