#include <qv_database_c/database_defect_pixel_cluster_correction.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseDefectPixelClusterCorrection_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),     QV_FIELD(bptEnable), QV_FIELD(bptNum),     QV_FIELD(bptOutMode),
    QV_FIELD(bptPosX),    QV_FIELD(bptPosY),   QV_FIELD(lineMadFac), QV_FIELD(lineThresh),
    QV_FIELD(methodsSet), QV_FIELD(outMode),   QV_FIELD(pgFac),      QV_FIELD(rgFac),
    QV_FIELD(rndOffs),    QV_FIELD(rndThresh), QV_FIELD(roLimits),   QV_FIELD(setUse),
};

} // namespace

constinit const TableOf<Record> kDefectPixelClusterCorrection{"QvDatabaseDefectPixelClusterCorrection", __FILE__,
                                                              kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseDefectPixelClusterCorrection_parse(QvJsonValue_t* pValue,
                                                 QvDatabaseDefectPixelClusterCorrection_t* pConfig)
{
    return readRecord(tuning::kDefectPixelClusterCorrection, pValue, pConfig);
}

int QvDatabaseDefectPixelClusterCorrection_serialize(QvDatabaseDefectPixelClusterCorrection_t* pConfig,
                                                     QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kDefectPixelClusterCorrection, pConfig, pValue);
}

int QvDatabaseDefectPixelClusterCorrection_reset(QvDatabaseDefectPixelClusterCorrection_t* pConfig)
{
    return clearRecord(pConfig);
}
