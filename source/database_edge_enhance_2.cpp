#include <qv_database_c/database_edge_enhance_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseEdgeEnhance_2_t;

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

constinit const TableOf<Record> kEdgeEnhance_2{"QvDatabaseEdgeEnhance_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseEdgeEnhance_2_parse(QvJsonValue_t* pValue, QvDatabaseEdgeEnhance_2_t* pConfig)
{
    return readRecord(tuning::kEdgeEnhance_2, pValue, pConfig);
}

int QvDatabaseEdgeEnhance_2_serialize(QvDatabaseEdgeEnhance_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kEdgeEnhance_2, pConfig, pValue);
}

int QvDatabaseEdgeEnhance_2_reset(QvDatabaseEdgeEnhance_2_t* pConfig)
{
    return clearRecord(pConfig);
}
