#include <qv_database_c/database_auto_demosaic_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoDeMosaic_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(dmscSharpenEnable),
    QV_FIELD(dmscDePurpleEnable),
    QV_FIELD(dmscSharpenFactorBlack),
    QV_FIELD(dmscSharpenFactorWhite),
    QV_FIELD(dmscSharpenClipBlack),
    QV_FIELD(dmscSharpenClipWhite),
    QV_FIELD(dmscSharpenT1),
    QV_FIELD(dmscSharpenT2Shift),
    QV_FIELD(dmscSharpenT3),
    QV_FIELD(dmscSharpenT4Shift),
    QV_FIELD(dmscDenoiseStrength),
    QV_FIELD(dmscSharpenSize),
    QV_FIELD(dmscSharpenR1),
    QV_FIELD(dmscSharpenR2),
    QV_FIELD(dmscSharpenR3),
    QV_FIELD(dmscDepurpleSatShrink),
    QV_FIELD(dmscDepurpleCbcrMode),
    QV_FIELD(dmscDepurpleThr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseAutoDeMosaic_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoDeMosaic_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoDeMosaic_2 = QV_TABLE("QvDatabaseAutoDeMosaic_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoDeMosaic_2, tuning::kAutoDeMosaic_2)
QV_CLEARED_RESET(QvDatabaseAutoDeMosaic_2)
