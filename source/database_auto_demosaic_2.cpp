#include <qv_database_c/database_auto_demosaic_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoDeMosaic_2_Table_t;

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

constexpr TableOf<Record> kTable{"QvDatabaseAutoDeMosaic_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoDeMosaic_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoDeMosaic_2{"QvDatabaseAutoDeMosaic_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoDeMosaic_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoDeMosaic_2_t* pConfig)
{
    return readRecord(tuning::kAutoDeMosaic_2, pValue, pConfig);
}

int QvDatabaseAutoDeMosaic_2_serialize(QvDatabaseAutoDeMosaic_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoDeMosaic_2, pConfig, pValue);
}

int QvDatabaseAutoDeMosaic_2_reset(QvDatabaseAutoDeMosaic_2_t* pConfig)
{
    return clearRecord(pConfig);
}
