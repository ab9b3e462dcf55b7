#include <qv_database_c/database_edge_enhance_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseEdgeEnhance_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(caCurve, "ca_curve"),
    QV_FIELD_KEY(caEnable, "ca_en"),
    QV_FIELD_KEY(caMode, "ca_mode"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(curveEnable, "curve_en"),
    QV_FIELD_KEY(dciCurve, "dci_curve"),
    QV_FIELD_KEY(dciEnable, "dci_en"),
    QV_FIELD_KEY(eeEdgeGain, "ee_edge_gain"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(eeSrcStrength, "ee_src_strength"),
    QV_FIELD_KEY(eeStrength, "ee_strength"),
    QV_FIELD_KEY(eeUvGain, "ee_uv_gain"),
    QV_FIELD_KEY(eeYDownGain, "ee_y_down_gain"),
    QV_FIELD_KEY(eeYUpGain, "ee_y_up_gain"),
    QV_FIELD_KEY(dciCurveCfgDegamma, "degamma"),
    QV_FIELD_KEY(dciCurveCfgDciMode, "dci_mode"),
    QV_FIELD_KEY(dciCurveCfgLowlumaIdx, "low_luma_index"),
    QV_FIELD_KEY(dciCurveCfgMiddlelumaIdx, "middle_luma_index"),
    QV_FIELD_KEY(dciCurveCfgHighlumaIdx, "high_luma_index"),
    QV_FIELD_KEY(dciCurveCfgInflctStartY, "inflct_start_y"),
    QV_FIELD_KEY(dciCurveCfgInflct1X, "inflct_1_x"),
    QV_FIELD_KEY(dciCurveCfgInflct1Y, "inflct_1_y"),
    QV_FIELD_KEY(dciCurveCfgInflct2X, "inflct_2_x"),
    QV_FIELD_KEY(dciCurveCfgInflct2Y, "inflct_2_y"),
    QV_FIELD_KEY(dciCurveCfgInflctStopY, "inflct_stop_y"),
};

} // namespace

extern constinit const TableOf<Record> kEdgeEnhance_2 = QV_TABLE("QvDatabaseProtocolSimulator_edgeEnhance_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_edgeEnhance_2, simulator::kEdgeEnhance_2)
