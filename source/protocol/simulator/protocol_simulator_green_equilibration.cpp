#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseGreenEquilibration_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(threshold),
};

} // namespace

extern constinit const TableOf<Record> kGreenEquilibration =
    QV_TABLE("QvDatabaseProtocolSimulator_greenEquilibration", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_greenEquilibration, simulator::kGreenEquilibration)
