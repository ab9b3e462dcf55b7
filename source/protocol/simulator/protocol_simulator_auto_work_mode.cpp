#include <qv_database_c/database_auto_work_mode.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseAutoWorkMode_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD_KEY(autoWorkMode, "workMode"),
};

} // namespace

constinit const TableOf<Record> kAutoWorkMode{"QvDatabaseProtocolSimulator_autoWorkMode", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoWorkMode_parse(QvJsonValue_t* pValue, QvDatabaseAutoWorkMode_t* pConfig)
{
    return readRecord(simulator::kAutoWorkMode, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoWorkMode_serialize(QvDatabaseAutoWorkMode_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoWorkMode, pConfig, pValue);
}
