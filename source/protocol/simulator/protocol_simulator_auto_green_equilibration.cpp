#include <qv_database_c/database_auto_green_equilibration.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoGreenEquilibration_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(hdr),
    QV_FIELD(gains),
    QV_FIELD(threshold),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoGreenEquilibration", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoGreenEquilibration_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoGreenEquilibration{"QvDatabaseProtocolSimulator_autoGreenEquilibration", __FILE__,
                                                        kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoGreenEquilibration_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseAutoGreenEquilibration_t* pConfig)
{
    return readRecord(simulator::kAutoGreenEquilibration, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoGreenEquilibration_serialize(QvDatabaseAutoGreenEquilibration_t* pConfig,
                                                                 QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoGreenEquilibration, pConfig, pValue);
}
