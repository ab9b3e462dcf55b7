#include <qv_database_c/database_auto_wide_dynamic_range_5_2_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoWideDynamicRange_5_2_1_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(gain),
    QV_FIELD(highStrength),
    QV_FIELD(lowStrength),
    QV_FIELD(entropyBase),
    QV_FIELD(wdrLumaThr),
    QV_FIELD(entropySlope),
    QV_FIELD(flatLevel),
    QV_FIELD(flatLevelGlobal),
    QV_FIELD(satRange),
    QV_FIELD(satThrGainDown),
    QV_FIELD(satThrGainUp),
    QV_FIELD(deGamma),
    QV_FIELD(hlcBaseLog),
    QV_FIELD(lightSatLoThr),
    QV_FIELD(lightSatHiThr),
    QV_FIELD(lightRedThrLog),
    QV_FIELD(lightGreenThrLog),
    QV_FIELD(lightBlueThrLog),
    QV_FIELD(lightYellowThrLog),
    QV_FIELD(lightCyanThrLog),
    QV_FIELD(lightMagentaThrLog),
    QV_FIELD(contrast),
    QV_FIELD(fixedWeight),
    QV_FIELD(logWeight),
    QV_FIELD(logAnchorXLog),
    QV_FIELD(logAnchorSlope),
    QV_FIELD(maxGain),
    QV_FIELD(hlcSlope),
    QV_FIELD(lightEn),
    QV_FIELD(wdrColorWeight),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAutoWideDynamicRange_5_2_1", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoWideDynamicRange_5_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoWideDynamicRange_5_2_1 =
    QV_TABLE("QvDatabaseAutoWideDynamicRange_5_2_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoWideDynamicRange_5_2_1, tuning::kAutoWideDynamicRange_5_2_1)
QV_CLEARED_RESET(QvDatabaseAutoWideDynamicRange_5_2_1)
