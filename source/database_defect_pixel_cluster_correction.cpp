#include <qv_database_c/database_defect_pixel_cluster_correction.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseDefectPixelClusterCorrection_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(bptEnable),
    QV_FIELD(bptNum),
    QV_FIELD(bptOutMode),
    QV_FIELD(bptPosX),
    QV_FIELD(bptPosY),
    QV_FIELD(lineMadFac),
    QV_FIELD(lineThresh),
    QV_FIELD(methodsSet),
    QV_FIELD(outMode),
    QV_FIELD(pgFac),
    QV_FIELD(rgFac),
    QV_FIELD(rndOffs),
    QV_FIELD(rndThresh),
    QV_FIELD(roLimits),
    QV_FIELD(setUse),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kDefectPixelClusterCorrection =
    QV_TABLE("QvDatabaseDefectPixelClusterCorrection", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseDefectPixelClusterCorrection, tuning::kDefectPixelClusterCorrection)
QV_CLEARED_RESET(QvDatabaseDefectPixelClusterCorrection)
