#include <qv_database_c/database_auto_white_balance_3.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseAutoWhiteBalance_3_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD_KEY(roiNum, "roiNumber"),
    QV_FIELD(roiWeight),
    QV_FIELD(roiWindow),
    QV_FIELD(useDamping),
};

} // namespace

constinit const TableOf<Record> kAutoWhiteBalance_3{"QvDatabaseProtocolSimulator_autoWhiteBalance_3", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoWhiteBalance_3_parse(QvJsonValue_t* pValue, QvDatabaseAutoWhiteBalance_3_t* pConfig)
{
    return readRecord(simulator::kAutoWhiteBalance_3, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoWhiteBalance_3_serialize(QvDatabaseAutoWhiteBalance_3_t* pConfig,
                                                             QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoWhiteBalance_3, pConfig, pValue);
}
