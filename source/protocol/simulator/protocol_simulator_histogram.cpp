#include <qv_database_c/database_histogram.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseHistogram_t);

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

extern constinit const TableOf<Record> kHistogram = QV_TABLE("QvDatabaseProtocolSimulator_histogram", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_histogram, simulator::kHistogram)
