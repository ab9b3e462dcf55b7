#include <qv_database_c/database_auto_color_process_1_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoColorProcess_1_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(gains), QV_FIELD(contrast), QV_FIELD(bright), QV_FIELD(saturation), QV_FIELD(hue), QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoColorProcess_1_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoColorProcess_1_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoColorProcess_1_2{"QvDatabaseAutoColorProcess_1_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoColorProcess_1_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoColorProcess_1_2_t* pConfig)
{
    return readRecord(tuning::kAutoColorProcess_1_2, pValue, pConfig);
}

int QvDatabaseAutoColorProcess_1_2_serialize(QvDatabaseAutoColorProcess_1_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoColorProcess_1_2, pConfig, pValue);
}

int QvDatabaseAutoColorProcess_1_2_reset(QvDatabaseAutoColorProcess_1_2_t* pConfig)
{
    return clearRecord(pConfig);
}
