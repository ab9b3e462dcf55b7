#include <qv_database_c/database_defect_pixel_cluster_correction.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseDefectPixelClusterCorrection_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(bptEnable, "bpt_enable"),
    QV_FIELD_KEY(bptNum, "bpt_num"),
    QV_FIELD_KEY(bptOutMode, "bpt_out_mode"),
    QV_FIELD_KEY(bptPosX, "bpt_pos_x"),
    QV_FIELD_KEY(bptPosY, "bpt_pos_y"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(lineMadFac, "line_mad_fac"),
    QV_FIELD_KEY(lineThresh, "line_thresh"),
    QV_FIELD_KEY(methodsSet, "methods_set"),
    QV_FIELD_KEY(outMode, "out_mode"),
    QV_FIELD_KEY(pgFac, "pg_fac"),
    QV_FIELD_KEY(rgFac, "rg_fac"),
    QV_FIELD_KEY(rndOffs, "rnd_offs"),
    QV_FIELD_KEY(rndThresh, "rnd_thresh"),
    QV_FIELD_KEY(roLimits, "ro_limits"),
    QV_FIELD_KEY(setUse, "set_use"),
};

} // namespace

extern constinit const TableOf<Record> kDefectPixelClusterCorrection =
    QV_TABLE("QvDatabaseProtocolSimulator_defectPixelClusterCorrection", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_defectPixelClusterCorrection, simulator::kDefectPixelClusterCorrection)
