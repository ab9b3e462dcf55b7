#include <qv_database_c/database_gamma_correction_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseGammaCorrection_2_t;

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

constinit const TableOf<Record> kGammaCorrection_2{"QvDatabaseProtocolSimulator_gammaCorrection_2", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_gammaCorrection_2_parse(QvJsonValue_t* pValue, QvDatabaseGammaCorrection_2_t* pConfig)
{
    return readRecord(simulator::kGammaCorrection_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_gammaCorrection_2_serialize(QvDatabaseGammaCorrection_2_t* pConfig,
                                                            QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kGammaCorrection_2, pConfig, pValue);
}
