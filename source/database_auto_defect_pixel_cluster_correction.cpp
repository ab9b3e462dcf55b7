#include <qv_database_c/database_auto_defect_pixel_cluster_correction.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseAutoDefectPixelClusterCorrection_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(autoModeSelect),
};

} // namespace

constinit const TableOf<Record> kAutoDefectPixelClusterCorrection{"QvDatabaseAutoDefectPixelClusterCorrection",
                                                                  __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoDefectPixelClusterCorrection_parse(QvJsonValue_t* pValue,
                                                     QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig)
{
    return readRecord(tuning::kAutoDefectPixelClusterCorrection, pValue, pConfig);
}

int QvDatabaseAutoDefectPixelClusterCorrection_serialize(QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig,
                                                         QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoDefectPixelClusterCorrection, pConfig, pValue);
}

int QvDatabaseAutoDefectPixelClusterCorrection_reset(QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig)
{
    return clearRecord(pConfig);
}
