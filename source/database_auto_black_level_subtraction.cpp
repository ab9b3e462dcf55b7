#include <qv_database_c/database_auto_black_level_subtraction.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoBlackLevelSubtractionTable_t;

constexpr Field kRows[] = {
    QV_FIELD(bls),
    QV_FIELD(gains),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoBlackLevelSubtraction", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoBlackLevelSubtraction_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoBlackLevelSubtraction{"QvDatabaseAutoBlackLevelSubtraction", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoBlackLevelSubtraction_parse(QvJsonValue_t* pValue, QvDatabaseAutoBlackLevelSubtraction_t* pConfig)
{
    return readRecord(tuning::kAutoBlackLevelSubtraction, pValue, pConfig);
}

int QvDatabaseAutoBlackLevelSubtraction_serialize(QvDatabaseAutoBlackLevelSubtraction_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoBlackLevelSubtraction, pConfig, pValue);
}

int QvDatabaseAutoBlackLevelSubtraction_reset(QvDatabaseAutoBlackLevelSubtraction_t* pConfig)
{
    return clearRecord(pConfig);
}
