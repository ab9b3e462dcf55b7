#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseGreenEquilibration_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(threshold),
};

} // namespace

constinit const TableOf<Record> kGreenEquilibration{"QvDatabaseProtocolSimulator_greenEquilibration", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_greenEquilibration_parse(QvJsonValue_t* pValue, QvDatabaseGreenEquilibration_t* pConfig)
{
    return readRecord(simulator::kGreenEquilibration, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_greenEquilibration_serialize(QvDatabaseGreenEquilibration_t* pConfig,
                                                             QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kGreenEquilibration, pConfig, pValue);
}
