#include <qv_database_c/database_auto_green_equilibration.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoGreenEquilibration_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(hdr),
    QV_FIELD(gains),
    QV_FIELD(threshold),
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoGreenEquilibration", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoGreenEquilibration_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoGreenEquilibration{"QvDatabaseAutoGreenEquilibration", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoGreenEquilibration_parse(QvJsonValue_t* pValue, QvDatabaseAutoGreenEquilibration_t* pConfig)
{
    return readRecord(tuning::kAutoGreenEquilibration, pValue, pConfig);
}

int QvDatabaseAutoGreenEquilibration_serialize(QvDatabaseAutoGreenEquilibration_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoGreenEquilibration, pConfig, pValue);
}

int QvDatabaseAutoGreenEquilibration_reset(QvDatabaseAutoGreenEquilibration_t* pConfig)
{
    return clearRecord(pConfig);
}
