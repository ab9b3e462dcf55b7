#include <qv_database_c/database_auto_wide_dynamic_range_5_2_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoWideDynamicRange_5_2_1_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(contrast),
    QV_FIELD_KEY(deGamma, "degamma"),
    QV_FIELD_KEY(entropyBase, "entropy_base"),
    QV_FIELD_KEY(entropySlope, "entropy_slope"),
    QV_FIELD_KEY(fixedWeight, "fixed_weight"),
    QV_FIELD_KEY(flatLevel, "flat_level"),
    QV_FIELD_KEY(flatLevelGlobal, "flat_level_global"),
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD(hdr),
    QV_FIELD_KEY(highStrength, "high_strength"),
    QV_FIELD_KEY(hlcBaseLog, "hlc_base_log"),
    QV_FIELD_KEY(hlcSlope, "hlc_slope"),
    QV_FIELD_KEY(lightBlueThrLog, "light_blue_thr_log"),
    QV_FIELD_KEY(lightCyanThrLog, "light_cyan_thr_log"),
    QV_FIELD_KEY(lightEn, "light_en").asInteger(),
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
    QV_FIELD_KEY(satRange, "sat_range"),
    QV_FIELD_KEY(satThrGainDown, "sat_thr_gaindown"),
    QV_FIELD_KEY(satThrGainUp, "sat_thr_gainup"),
    QV_FIELD_KEY(wdrColorWeight, "wdr_color_weight"),
    QV_FIELD_KEY(wdrLumaThr, "wdr_luma_thr"),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoWideDynamicRange_5_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoWideDynamicRange_5_2_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1, simulator::kAutoWideDynamicRange_5_2_1)
