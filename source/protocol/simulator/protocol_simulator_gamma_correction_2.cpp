#include <qv_database_c/database_gamma_correction_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseGammaCorrection_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(curve),
    QV_FIELD_KEY(curvePx, "curve_px"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(standard),
    QV_FIELD_KEY(userCurveX, "user_curve_x"),
    QV_FIELD_KEY(standardVal, "standard_val"),
};

} // namespace

extern constinit const TableOf<Record> kGammaCorrection_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_gammaCorrection_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_gammaCorrection_2, simulator::kGammaCorrection_2)
