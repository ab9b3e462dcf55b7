#include <qv_database_c/database_gamma_correction_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseGammaCorrection_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable), QV_FIELD(standard),   QV_FIELD(standardVal),
    QV_FIELD(curve),  QV_FIELD(userCurveX), QV_FIELD(curvePx),
};

} // namespace

constinit const TableOf<Record> kGammaCorrection_2{"QvDatabaseGammaCorrection_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseGammaCorrection_2_parse(QvJsonValue_t* pValue, QvDatabaseGammaCorrection_2_t* pConfig)
{
    return readRecord(tuning::kGammaCorrection_2, pValue, pConfig);
}

int QvDatabaseGammaCorrection_2_serialize(QvDatabaseGammaCorrection_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kGammaCorrection_2, pConfig, pValue);
}

int QvDatabaseGammaCorrection_2_reset(QvDatabaseGammaCorrection_2_t* pConfig)
{
    return clearRecord(pConfig);
}
