#include <qv_database_c/database_demosaic_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseDeMosaic_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(cacCfgABlue, "a_blue"),
    QV_FIELD_KEY(cacCfgARed, "a_red"),
    QV_FIELD_KEY(cacCfgBBlue, "b_blue"),
    QV_FIELD_KEY(cacCfgBRed, "b_red"),
    QV_FIELD_KEY(cacCfgCBlue, "c_blue"),
    QV_FIELD_KEY(cacCfgCRed, "c_red"),
    QV_FIELD_KEY(dmscCacEnable, "cac_enable"),
    QV_FIELD_KEY(cacCfgCenterHoffs, "center_h_offs").writtenUnsigned(),
    QV_FIELD_KEY(cacCfgCenterVoffs, "center_v_offs").writtenUnsigned(),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(demoireEdgeR1, "demoire_edge_r1"),
    QV_FIELD_KEY(demoireEdgeR2, "demoire_edge_r2"),
    QV_FIELD_KEY(demoireEdgeT1, "demoire_edge_t1"),
    QV_FIELD_KEY(demoireEdgeT2Shift, "demoire_edge_t2_shift"),
    QV_FIELD_KEY(dmscDemoireAreaThr, "dmsc_demoire_area_thr"),
    QV_FIELD_KEY(dmscDeMoireEnable, "dmsc_demoire_enable"),
    QV_FIELD_KEY(dmscDemoireR1, "dmsc_demoire_r1"),
    QV_FIELD_KEY(dmscDemoireR2, "dmsc_demoire_r2"),
    QV_FIELD_KEY(dmscDemoireSatShrink, "dmsc_demoire_sat_shrink"),
    QV_FIELD_KEY(dmscDemoireT1, "dmsc_demoire_t1"),
    QV_FIELD_KEY(dmscDemoireT2Shift, "dmsc_demoire_t2_shift"),
    QV_FIELD_KEY(dmscDenoiseStrength, "dmsc_denoise_strength"),
    QV_FIELD_KEY(enable, "demosaic_enable"),
    QV_FIELD_KEY(demosaicThr, "demosaic_thr"),
    QV_FIELD_KEY(dmscDepurpleCbcrMode, "dmsc_depurple_cbcr_mode"),
    QV_FIELD_KEY(dmscDePurpleEnable, "dmsc_depurple_enable"),
    QV_FIELD_KEY(dmscDepurpleSatShrink, "dmsc_depurple_sat_shrink"),
    QV_FIELD_KEY(dmscDepurpleThr, "dmsc_depurple_thr"),
    QV_FIELD_KEY(dmscDirThrMax, "dmsc_dir_thr_max"),
    QV_FIELD_KEY(dmscDirThrMin, "dmsc_dir_thr_min"),
    QV_FIELD_KEY(dmscSharpenClipBlack, "dmsc_sharpen_clip_black"),
    QV_FIELD_KEY(dmscSharpenClipWhite, "dmsc_sharpen_clip_white"),
    QV_FIELD_KEY(dmscSharpenEnable, "dmsc_sharpen_enable"),
    QV_FIELD_KEY(dmscSharpenFactorBlack, "dmsc_sharpen_factor_black"),
    QV_FIELD_KEY(dmscSharpenFactorWhite, "dmsc_sharpen_factor_white"),
    QV_FIELD_KEY(dmscSharpenLineEnable, "dmsc_sharpen_line_enable"),
    QV_FIELD_KEY(dmscSharpenLineR1, "dmsc_sharpen_line_r1"),
    QV_FIELD_KEY(dmscSharpenLineR2, "dmsc_sharpen_line_r2"),
    QV_FIELD_KEY(dmscSharpenLineStrength, "dmsc_sharpen_line_strength"),
    QV_FIELD_KEY(dmscSharpenLineThr, "dmsc_sharpen_line_thr"),
    QV_FIELD_KEY(dmscSharpenLineThrShift1, "dmsc_sharpen_line_thr_shift1"),
    QV_FIELD_KEY(dmscSharpenR1, "dmsc_sharpen_r1"),
    QV_FIELD_KEY(dmscSharpenR2, "dmsc_sharpen_r2"),
    QV_FIELD_KEY(dmscSharpenR3, "dmsc_sharpen_r3"),
    QV_FIELD_KEY(dmscSharpenSize, "dmsc_sharpen_size"),
    QV_FIELD_KEY(dmscSharpenT1, "dmsc_sharpen_t1"),
    QV_FIELD_KEY(dmscSharpenT2Shift, "dmsc_sharpen_t2_shift"),
    QV_FIELD_KEY(dmscSharpenT3, "dmsc_sharpen_t3"),
    QV_FIELD_KEY(dmscSharpenT4Shift, "dmsc_sharpen_t4_shift"),
    QV_FIELD_KEY(dmscSkinCbThrMax, "dmsc_skin_cb_thr_max").writtenUnsigned(),
    QV_FIELD_KEY(dmscSkinCbThrMin, "dmsc_skin_cb_thr_min").writtenUnsigned(),
    QV_FIELD_KEY(dmscSkinCrThrMax, "dmsc_skin_cr_thr_max").writtenUnsigned(),
    QV_FIELD_KEY(dmscSkinCrThrMin, "dmsc_skin_cr_thr_min").writtenUnsigned(),
    QV_FIELD_KEY(dmscSkinEnable, "dmsc_skin_enable"),
    QV_FIELD_KEY(dmscSkinYThrMax, "dmsc_skin_y_thr_max"),
    QV_FIELD_KEY(dmscSkinYThrMin, "dmsc_skin_y_thr_min"),
};

} // namespace

extern constinit const TableOf<Record> kDeMosaic_2 = QV_TABLE("QvDatabaseProtocolSimulator_deMosaic_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_deMosaic_2, simulator::kDeMosaic_2)
