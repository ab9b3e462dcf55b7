#include <qv_database_c/database_auto_demosaic_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoDeMosaic_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(dmscDenoiseStrength, "dmsc_denoise_strength"),
    QV_FIELD_KEY(dmscDepurpleCbcrMode, "dmsc_depurple_cbcr_mode"),
    QV_FIELD_KEY(dmscDePurpleEnable, "dmsc_depurple_enable"),
    QV_FIELD_KEY(dmscDepurpleSatShrink, "dmsc_depurple_sat_shrink"),
    QV_FIELD_KEY(dmscDepurpleThr, "dmsc_depurple_thr"),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD_KEY(dmscSharpenClipBlack, "dmsc_sharpen_clip_black"),
    QV_FIELD_KEY(dmscSharpenClipWhite, "dmsc_sharpen_clip_white"),
    QV_FIELD_KEY(dmscSharpenEnable, "dmsc_sharpen_enable"),
    QV_FIELD_KEY(dmscSharpenFactorBlack, "dmsc_sharpen_factor_black"),
    QV_FIELD_KEY(dmscSharpenFactorWhite, "dmsc_sharpen_factor_white"),
    QV_FIELD_KEY(dmscSharpenR1, "dmsc_sharpen_r1"),
    QV_FIELD_KEY(dmscSharpenR2, "dmsc_sharpen_r2"),
    QV_FIELD_KEY(dmscSharpenR3, "dmsc_sharpen_r3"),
    QV_FIELD_KEY(dmscSharpenSize, "dmsc_sharpen_size"),
    QV_FIELD_KEY(dmscSharpenT1, "dmsc_sharpen_t1"),
    QV_FIELD_KEY(dmscSharpenT2Shift, "dmsc_sharpen_t2_shift"),
    QV_FIELD_KEY(dmscSharpenT3, "dmsc_sharpen_t3"),
    QV_FIELD_KEY(dmscSharpenT4Shift, "dmsc_sharpen_t4_shift"),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoDeMosaic_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoDeMosaic_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoDeMosaic_2 = QV_TABLE("QvDatabaseProtocolSimulator_autoDeMosaic_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoDeMosaic_2, simulator::kAutoDeMosaic_2)
