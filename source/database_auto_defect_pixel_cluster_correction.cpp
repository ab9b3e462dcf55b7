#include <qv_database_c/database_auto_defect_pixel_cluster_correction.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoDefectPixelClusterCorrection_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(autoModeSelect),
};

} // namespace

extern constinit const TableOf<Record> kAutoDefectPixelClusterCorrection =
    QV_TABLE("QvDatabaseAutoDefectPixelClusterCorrection", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoDefectPixelClusterCorrection, tuning::kAutoDefectPixelClusterCorrection)
QV_CLEARED_RESET(QvDatabaseAutoDefectPixelClusterCorrection)
