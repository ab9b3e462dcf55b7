#include <qv_database_c/database_isp.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseIsp_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
};

} // namespace

constinit const TableOf<Record> kIsp{"QvDatabaseProtocolSimulator_isp", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_isp_parse(QvJsonValue_t* pValue, QvDatabaseIsp_t* pConfig)
{
    return readRecord(simulator::kIsp, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_isp_serialize(QvDatabaseIsp_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kIsp, pConfig, pValue);
}

int QvDatabaseIsp_reset(QvDatabaseIsp_t* pConfig)
{
    return clearRecord(pConfig);
}
