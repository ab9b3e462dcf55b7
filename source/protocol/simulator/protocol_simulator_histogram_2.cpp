#include <qv_database_c/database_histogram_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseHistogram_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(window),
};

} // namespace

constinit const TableOf<Record> kHistogram_2{"QvDatabaseProtocolSimulator_histogram_2", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_histogram_2_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_2_t* pConfig)
{
    return readRecord(simulator::kHistogram_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_histogram_2_serialize(QvDatabaseHistogram_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kHistogram_2, pConfig, pValue);
}
