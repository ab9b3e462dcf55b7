#include <qv_database_c/database_rgb_infrared_radiation_1_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseRgbInfraredRadiation_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable), QV_FIELD(ccMatrix), QV_FIELD(dpccMidTh),      QV_FIELD(dpccTh),
    QV_FIELD(irThr),  QV_FIELD(lThr),     QV_FIELD(irBayerPattern), QV_FIELD(outRgbPattern),
};

} // namespace

constinit const TableOf<Record> kRgbInfraredRadiation_1_1{"QvDatabaseRgbInfraredRadiation_1_1", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseRgbInfraredRadiation_1_1_parse(QvJsonValue_t* pValue, QvDatabaseRgbInfraredRadiation_1_1_t* pConfig)
{
    return readRecord(tuning::kRgbInfraredRadiation_1_1, pValue, pConfig);
}

int QvDatabaseRgbInfraredRadiation_1_1_serialize(QvDatabaseRgbInfraredRadiation_1_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kRgbInfraredRadiation_1_1, pConfig, pValue);
}

int QvDatabaseRgbInfraredRadiation_1_1_reset(QvDatabaseRgbInfraredRadiation_1_1_t* pConfig)
{
    return clearRecord(pConfig);
}
