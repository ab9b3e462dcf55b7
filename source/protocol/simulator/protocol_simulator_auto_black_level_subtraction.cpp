#include <qv_database_c/database_auto_black_level_subtraction.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoBlackLevelSubtractionTable_t;

constexpr Field kRows[] = {
    QV_FIELD(bls),
    QV_FIELD(gains),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoBlackLevelSubtraction", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoBlackLevelSubtraction_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoBlackLevelSubtraction{"QvDatabaseProtocolSimulator_autoBlackLevelSubtraction",
                                                           __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoBlackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                                QvDatabaseAutoBlackLevelSubtraction_t* pConfig)
{
    return readRecord(simulator::kAutoBlackLevelSubtraction, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoBlackLevelSubtraction_serialize(QvDatabaseAutoBlackLevelSubtraction_t* pConfig,
                                                                    QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoBlackLevelSubtraction, pConfig, pValue);
}
