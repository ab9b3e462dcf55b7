#include <qv_database_c/database_misc.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseMisc_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(nrReloc, "nr_reloc"),
    QV_FIELD(dpccRawEnable),
};

} // namespace

constinit const TableOf<Record> kMisc{"QvDatabaseProtocolSimulator_misc", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_misc_parse(QvJsonValue_t* pValue, QvDatabaseMisc_t* pConfig)
{
    return readRecord(simulator::kMisc, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_misc_serialize(QvDatabaseMisc_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kMisc, pConfig, pValue);
}
