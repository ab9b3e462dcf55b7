#include <qv_database_c/database_wide_dynamic_range_5_2_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseWideDynamicRange_5_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(strength),
    QV_FIELD(highStrength),
    QV_FIELD(lowStrength),
    QV_FIELD(contrast),
    QV_FIELD(entropyEnable),
    QV_FIELD(entropyBase),
    QV_FIELD(entropySlope),
    QV_FIELD(wdrLumaThr),
    QV_FIELD(flatMode),
    QV_FIELD(flatLevel),
    QV_FIELD(flatLevelInc),
    QV_FIELD(darkAttentionLevel),
    QV_FIELD(fixedWeight),
    QV_FIELD(wdrCurveSelect),
    QV_FIELD(logWeight),
    QV_FIELD(logAnchorXLog),
    QV_FIELD(logAnchorSlope),
    QV_FIELD(ratioActual),
    QV_FIELD(curve2Thr),
    QV_FIELD(curve2LoSat),
    QV_FIELD(curve2HiFactor),
    QV_FIELD(curve2LoFactor),
    QV_FIELD(flatLevelGlobal),
    QV_FIELD(deGamma),
    QV_FIELD(maxGain),
    QV_FIELD(minGain),
    QV_FIELD(diffHigh),
    QV_FIELD(diffLow),
    QV_FIELD(satRange),
    QV_FIELD(satThrGainDown),
    QV_FIELD(satThrGainUp),
    QV_FIELD(lightSatLoThr),
    QV_FIELD(lightSatHiThr),
    QV_FIELD(lightRedThrLog),
    QV_FIELD(lightGreenThrLog),
    QV_FIELD(lightBlueThrLog),
    QV_FIELD(lightYellowThrLog),
    QV_FIELD(lightCyanThrLog),
    QV_FIELD(lightMagentaThrLog),
    QV_FIELD(hlcBaseLog),
    QV_FIELD(hlcSlope),
    QV_FIELD(lightEn),
    QV_FIELD(dampMode),
    QV_FIELD(dampCurveCoef),
    QV_FIELD(dampCurveMax),
    QV_FIELD(dampCurveMin),
    QV_FIELD(dampAvgCoef),
    QV_FIELD(dampAvgMax),
    QV_FIELD(dampAvgMin),
    QV_FIELD(dampCoefDecLimit),
    QV_FIELD(dampCoefIncLimit),
    QV_FIELD(dampFilterSize),
    QV_FIELD(dampHiThrLog),
    QV_FIELD(dampLoThrLog),
    QV_FIELD(wdrColorWeight),
    QV_FIELD(wdrLightnessWeight),
    QV_FIELD(wdrRgbCoef),
    QV_FIELD(gammaUpCurveX),
    QV_FIELD(gammaUpCurveY),
};

} // namespace

extern constinit const TableOf<Record> kWideDynamicRange_5_2_1 = QV_TABLE("QvDatabaseWideDynamicRange_5_2_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseWideDynamicRange_5_2_1, tuning::kWideDynamicRange_5_2_1)
QV_CLEARED_RESET(QvDatabaseWideDynamicRange_5_2_1)
