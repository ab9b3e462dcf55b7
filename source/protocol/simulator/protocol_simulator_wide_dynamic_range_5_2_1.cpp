#include <qv_database_c/database_wide_dynamic_range_5_2_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseWideDynamicRange_5_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(contrast),
    QV_FIELD_KEY(curve2HiFactor, "curve2_hifactor"),
    QV_FIELD_KEY(curve2LoFactor, "curve2_lofactor"),
    QV_FIELD_KEY(curve2LoSat, "curve2_losat"),
    QV_FIELD_KEY(curve2Thr, "curve2_thr"),
    QV_FIELD_KEY(dampAvgCoef, "damp_avg_coef"),
    QV_FIELD_KEY(dampAvgMax, "damp_avg_max"),
    QV_FIELD_KEY(dampAvgMin, "damp_avg_min"),
    QV_FIELD_KEY(dampCoefDecLimit, "damp_coef_dec_limit"),
    QV_FIELD_KEY(dampCoefIncLimit, "damp_coef_inc_limit"),
    QV_FIELD_KEY(dampCurveCoef, "damp_curve_coef"),
    QV_FIELD_KEY(dampCurveMax, "damp_curve_max"),
    QV_FIELD_KEY(dampCurveMin, "damp_curve_min"),
    QV_FIELD_KEY(dampFilterSize, "damp_filter_size"),
    QV_FIELD_KEY(dampHiThrLog, "damp_hithr_log"),
    QV_FIELD_KEY(dampLoThrLog, "damp_lothr_log"),
    QV_FIELD_KEY(dampMode, "damp_mode"),
    QV_FIELD_KEY(darkAttentionLevel, "dark_attention_level"),
    QV_FIELD_KEY(deGamma, "degamma"),
    QV_FIELD_KEY(diffHigh, "diff_high"),
    QV_FIELD_KEY(diffLow, "diff_low"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(entropyBase, "entropy_base"),
    QV_FIELD_KEY(entropyEnable, "entropy_enable"),
    QV_FIELD_KEY(entropySlope, "entropy_slope"),
    QV_FIELD_KEY(fixedWeight, "fixed_weight"),
    QV_FIELD_KEY(flatLevel, "flat_level"),
    QV_FIELD_KEY(flatLevelGlobal, "flat_level_global"),
    QV_FIELD_KEY(flatLevelInc, "flat_level_inc"),
    QV_FIELD_KEY(flatMode, "flat_mode"),
    QV_FIELD_KEY(highStrength, "high_strength"),
    QV_FIELD_KEY(hlcBaseLog, "hlc_base_log"),
    QV_FIELD_KEY(hlcSlope, "hlc_slope"),
    QV_FIELD_KEY(lightBlueThrLog, "light_blue_thr_log"),
    QV_FIELD_KEY(lightCyanThrLog, "light_cyan_thr_log"),
    QV_FIELD_KEY(lightEn, "light_en"),
    QV_FIELD_KEY(lightGreenThrLog, "light_green_thr_log"),
    QV_FIELD_KEY(lightMagentaThrLog, "light_magenta_thr_log"),
    QV_FIELD_KEY(lightRedThrLog, "light_red_thr_log"),
    QV_FIELD_KEY(lightSatHiThr, "light_sat_hithr"),
    QV_FIELD_KEY(lightSatLoThr, "light_sat_lothr"),
    QV_FIELD_KEY(lightYellowThrLog, "light_yellow_thr_log"),
    QV_FIELD_KEY(logAnchorSlope, "log_anchor_slope"),
    QV_FIELD_KEY(logAnchorXLog, "log_anchor_x_log"),
    QV_FIELD_KEY(logWeight, "log_weight"),
    QV_FIELD_KEY(lowStrength, "low_strength"),
    QV_FIELD_KEY(maxGain, "max_gain"),
    QV_FIELD_KEY(minGain, "min_gain"),
    QV_FIELD_KEY(ratioActual, "ratio_actual"),
    QV_FIELD_KEY(satRange, "sat_range"),
    QV_FIELD_KEY(satThrGainDown, "sat_thr_gaindown"),
    QV_FIELD_KEY(satThrGainUp, "sat_thr_gainup"),
    QV_FIELD(strength),
    QV_FIELD_KEY(wdrColorWeight, "wdr_color_weight"),
    QV_FIELD_KEY(wdrCurveSelect, "wdr_curve_select"),
    QV_FIELD_KEY(wdrLightnessWeight, "wdr_lightness_weight"),
    QV_FIELD_KEY(wdrLumaThr, "wdr_luma_thr"),
    QV_FIELD_KEY(wdrRgbCoef, "wdr_rgb_coef"),
    QV_FIELD_KEY(gammaUpCurveX, "gammaup_curve_x"),
    QV_FIELD_KEY(gammaUpCurveY, "gammaup_curve_y"),
};

} // namespace

extern constinit const TableOf<Record> kWideDynamicRange_5_2_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1, simulator::kWideDynamicRange_5_2_1)
