#include <qv_database_c/database_compand_1_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseCompand_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(expandCurveX),
    QV_FIELD(expandCurveY),
};

} // namespace

extern constinit const TableOf<Record> kCompand_1_1 = QV_TABLE("QvDatabaseCompand_1_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseCompand_1_1, tuning::kCompand_1_1)
QV_CLEARED_RESET(QvDatabaseCompand_1_1)
