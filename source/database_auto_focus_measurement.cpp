#include <qv_database_c/database_auto_focus_measurement.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseAutoFocusMeasurement_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(id),
    QV_FIELD(threshold),
    QV_FIELD(window),
};

} // namespace

constinit const TableOf<Record> kAutoFocusMeasurement{"QvDatabaseAutoFocusMeasurement", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoFocusMeasurement_parse(QvJsonValue_t* pValue, QvDatabaseAutoFocusMeasurement_t* pConfig)
{
    return readRecord(tuning::kAutoFocusMeasurement, pValue, pConfig);
}

int QvDatabaseAutoFocusMeasurement_serialize(QvDatabaseAutoFocusMeasurement_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoFocusMeasurement, pConfig, pValue);
}

int QvDatabaseAutoFocusMeasurement_reset(QvDatabaseAutoFocusMeasurement_t* pConfig)
{
    return clearRecord(pConfig);
}
