#include <qv_database_c/database_auto_gamma_correction_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoGammaCorrection_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(curve),
    QV_FIELD(gain),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoGammaCorrection_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoGammaCorrection_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoGammaCorrection_2{"QvDatabaseAutoGammaCorrection_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoGammaCorrection_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoGammaCorrection_2_t* pConfig)
{
    return readRecord(tuning::kAutoGammaCorrection_2, pValue, pConfig);
}

int QvDatabaseAutoGammaCorrection_2_serialize(QvDatabaseAutoGammaCorrection_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoGammaCorrection_2, pConfig, pValue);
}

int QvDatabaseAutoGammaCorrection_2_reset(QvDatabaseAutoGammaCorrection_2_t* pConfig)
{
    return clearRecord(pConfig);
}
