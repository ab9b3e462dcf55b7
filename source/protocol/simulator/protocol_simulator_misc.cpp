#include <qv_database_c/database_misc.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseMisc_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(nrReloc, "nr_reloc"),
    QV_FIELD(dpccRawEnable),
};

} // namespace

extern constinit const TableOf<Record> kMisc = QV_TABLE("QvDatabaseProtocolSimulator_misc", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_misc, simulator::kMisc)
