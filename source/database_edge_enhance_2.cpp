#include <qv_database_c/database_edge_enhance_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseEdgeEnhance_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(caEnable),
    QV_FIELD(dciEnable),
    QV_FIELD(curveEnable),
    QV_FIELD(eeEdgeGain),
    QV_FIELD(eeSrcStrength),
    QV_FIELD(eeStrength),
    QV_FIELD(eeUvGain),
    QV_FIELD(eeYDownGain),
    QV_FIELD(eeYUpGain),
    QV_FIELD(caMode),
    QV_FIELD(caCurve),
    QV_FIELD(dciCurve),
    QV_FIELD(dciCurveCfgDegamma),
    QV_FIELD(dciCurveCfgDciMode),
    QV_FIELD(dciCurveCfgLowlumaIdx),
    QV_FIELD(dciCurveCfgMiddlelumaIdx),
    QV_FIELD(dciCurveCfgHighlumaIdx),
    QV_FIELD(dciCurveCfgInflctStartY),
    QV_FIELD(dciCurveCfgInflct1X),
    QV_FIELD(dciCurveCfgInflct1Y),
    QV_FIELD(dciCurveCfgInflct2X),
    QV_FIELD(dciCurveCfgInflct2Y),
    QV_FIELD(dciCurveCfgInflctStopY),
};

} // namespace

extern constinit const TableOf<Record> kEdgeEnhance_2 = QV_TABLE("QvDatabaseEdgeEnhance_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseEdgeEnhance_2, tuning::kEdgeEnhance_2)
QV_CLEARED_RESET(QvDatabaseEdgeEnhance_2)
