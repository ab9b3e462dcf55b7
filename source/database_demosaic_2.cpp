#include <qv_database_c/database_demosaic_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseDeMosaic_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(dmscCacEnable),
    QV_FIELD(dmscDeMoireEnable),
    QV_FIELD(dmscDePurpleEnable),
    QV_FIELD(dmscSharpenEnable),
    QV_FIELD(dmscSharpenLineEnable),
    QV_FIELD(dmscSkinEnable),
    QV_FIELD(demosaicThr),
    QV_FIELD(dmscDirThrMax),
    QV_FIELD(dmscDirThrMin),
    QV_FIELD(dmscDemoireT1),
    QV_FIELD(dmscDemoireT2Shift),
    QV_FIELD(dmscDemoireR1),
    QV_FIELD(dmscDemoireR2),
    QV_FIELD(demoireEdgeR1),
    QV_FIELD(demoireEdgeR2),
    QV_FIELD(demoireEdgeT1),
    QV_FIELD(demoireEdgeT2Shift),
    QV_FIELD(dmscDemoireAreaThr),
    QV_FIELD(dmscDemoireSatShrink),
    QV_FIELD(dmscSharpenClipBlack),
    QV_FIELD(dmscSharpenClipWhite),
    QV_FIELD(dmscSharpenFactorBlack),
    QV_FIELD(dmscSharpenFactorWhite),
    QV_FIELD(dmscSharpenR1),
    QV_FIELD(dmscSharpenR2),
    QV_FIELD(dmscSharpenR3),
    QV_FIELD(dmscSharpenT1),
    QV_FIELD(dmscSharpenT2Shift),
    QV_FIELD(dmscSharpenT3),
    QV_FIELD(dmscSharpenT4Shift),
    QV_FIELD(dmscSharpenSize),
    QV_FIELD(dmscDenoiseStrength),
    QV_FIELD(dmscSharpenLineR1),
    QV_FIELD(dmscSharpenLineR2),
    QV_FIELD(dmscSharpenLineStrength),
    QV_FIELD(dmscSharpenLineThr),
    QV_FIELD(dmscSharpenLineThrShift1),
    QV_FIELD(dmscSkinCbThrMax).writtenUnsigned(),
    QV_FIELD(dmscSkinCbThrMin).writtenUnsigned(),
    QV_FIELD(dmscSkinCrThrMax).writtenUnsigned(),
    QV_FIELD(dmscSkinCrThrMin).writtenUnsigned(),
    QV_FIELD(dmscSkinYThrMax),
    QV_FIELD(dmscSkinYThrMin),
    QV_FIELD(dmscDepurpleCbcrMode),
    QV_FIELD(dmscDepurpleSatShrink),
    QV_FIELD(dmscDepurpleThr),
    QV_FIELD(cacCfgABlue),
    QV_FIELD(cacCfgARed),
    QV_FIELD(cacCfgBBlue),
    QV_FIELD(cacCfgBRed),
    QV_FIELD(cacCfgCBlue),
    QV_FIELD(cacCfgCRed),
    QV_FIELD(cacCfgCenterHoffs).writtenUnsigned(),
    QV_FIELD(cacCfgCenterVoffs).writtenUnsigned(),
    QV_FIELD(overrideCaliEn),
};

Record default_()
{
    Record record{};
    record.overrideCaliEn = true;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kDeMosaic_2 = QV_TABLE("QvDatabaseDeMosaic_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseDeMosaic_2, tuning::kDeMosaic_2)
QV_DEFAULT_RESET(QvDatabaseDeMosaic_2, tuning::default_())
