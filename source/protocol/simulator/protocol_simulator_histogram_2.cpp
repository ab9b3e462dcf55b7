#include <qv_database_c/database_histogram_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseHistogram_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(window),
};

} // namespace

extern constinit const TableOf<Record> kHistogram_2 = QV_TABLE("QvDatabaseProtocolSimulator_histogram_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_histogram_2, simulator::kHistogram_2)
