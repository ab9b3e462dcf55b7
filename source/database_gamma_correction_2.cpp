#include <qv_database_c/database_gamma_correction_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseGammaCorrection_2_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(standard),
    QV_FIELD(standardVal),
    QV_FIELD(curve),
    QV_FIELD(userCurveX),
    QV_FIELD(curvePx),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kGammaCorrection_2 = QV_TABLE("QvDatabaseGammaCorrection_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseGammaCorrection_2, tuning::kGammaCorrection_2)
QV_CLEARED_RESET(QvDatabaseGammaCorrection_2)
