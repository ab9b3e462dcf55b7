#include <qv_database_c/database_histogram.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseHistogram_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(channel),
    QV_FIELD(window),
    QV_FIELD_KEY(rCoeff, "rcoff"),
    QV_FIELD_KEY(gCoeff, "gcoff"),
    QV_FIELD_KEY(bCoeff, "bcoff"),
};

} // namespace

constinit const TableOf<Record> kHistogram{"QvDatabaseProtocolSimulator_histogram", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_histogram_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_t* pConfig)
{
    return readRecord(simulator::kHistogram, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_histogram_serialize(QvDatabaseHistogram_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kHistogram, pConfig, pValue);
}
