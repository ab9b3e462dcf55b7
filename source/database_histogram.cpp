#include <qv_database_c/database_histogram.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseHistogram_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(channel),
    QV_FIELD(window),
    QV_FIELD(rCoeff),
    QV_FIELD(gCoeff),
    QV_FIELD(bCoeff),
};
// clang-format on

/// The results leave the record through this table alone.
constexpr Field kResultRows[] = {
    QV_FIELD(bin).writeOnly(),
};

} // namespace

extern constinit const TableOf<Record> kHistogram = QV_TABLE("QvDatabaseHistogram", kRows);
extern constinit const TableOf<Record> kHistogramResults = QV_TABLE("QvDatabaseHistogram", kResultRows, "statistics");

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseHistogram, tuning::kHistogram)
QV_CLEARED_RESET(QvDatabaseHistogram)

int QvDatabaseHistogram_statistics(QvDatabaseHistogram_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHistogramResults, pConfig, pValue);
}
