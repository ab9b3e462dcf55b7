#include <qv_database_c/database_white_balance_1_1.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseWhiteBalance_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(gain),
};

} // namespace

constinit const TableOf<Record> kWhiteBalance_1_1{"QvDatabaseProtocolSimulator_whiteBalance_1_1", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_whiteBalance_1_1_parse(QvJsonValue_t* pValue, QvDatabaseWhiteBalance_1_1_t* pConfig)
{
    return readRecord(simulator::kWhiteBalance_1_1, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_whiteBalance_1_1_serialize(QvDatabaseWhiteBalance_1_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kWhiteBalance_1_1, pConfig, pValue);
}
