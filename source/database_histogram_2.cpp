#include <qv_database_c/database_histogram_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseHistogram_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(window),
};

/// The results leave the record through this table alone.
constexpr Field kResultRows[] = {
    QV_FIELD(bin).writeOnly(),
};

} // namespace

extern constinit const TableOf<Record> kHistogram_2 = QV_TABLE("QvDatabaseHistogram_2", kRows);
extern constinit const TableOf<Record> kHistogram_2Results =
    QV_TABLE("QvDatabaseHistogram_2", kResultRows, "statistics");

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseHistogram_2, tuning::kHistogram_2)
QV_CLEARED_RESET(QvDatabaseHistogram_2)

int QvDatabaseHistogram_2_statistics(QvDatabaseHistogram_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHistogram_2Results, pConfig, pValue);
}
