#include <qv_database_c/database_black_level_subtraction.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseBlackLevelSubtraction_t;

constexpr Field kRows[] = {
    QV_FIELD(bls),
    QV_FIELD(bitWidth),
};

} // namespace

constinit const TableOf<Record> kBlackLevelSubtraction{"QvDatabaseProtocolSimulator_blackLevelSubtraction", __FILE__,
                                                       kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_blackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseBlackLevelSubtraction_t* pConfig)
{
    return readRecord(simulator::kBlackLevelSubtraction, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_blackLevelSubtraction_serialize(QvDatabaseBlackLevelSubtraction_t* pConfig,
                                                                QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kBlackLevelSubtraction, pConfig, pValue);
}
