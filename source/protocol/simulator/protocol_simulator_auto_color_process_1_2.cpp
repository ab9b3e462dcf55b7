#include <qv_database_c/database_auto_color_process_1_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoColorProcess_1_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(bright), QV_FIELD(contrast), QV_FIELD(gains), QV_FIELD(hdr), QV_FIELD(hue), QV_FIELD(saturation),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoColorProcess_1_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoColorProcess_1_2_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoColorProcess_1_2{"QvDatabaseProtocolSimulator_autoColorProcess_1_2", __FILE__,
                                                      kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoColorProcess_1_2_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAutoColorProcess_1_2_t* pConfig)
{
    return readRecord(simulator::kAutoColorProcess_1_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoColorProcess_1_2_serialize(QvDatabaseAutoColorProcess_1_2_t* pConfig,
                                                               QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoColorProcess_1_2, pConfig, pValue);
}
