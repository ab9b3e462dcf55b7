#include <qv_database_c/database_histogram.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseHistogram_t;

constexpr Field kRows[] = {
    QV_FIELD(enable), QV_FIELD(mode),   QV_FIELD(channel), QV_FIELD(window),
    QV_FIELD(rCoeff), QV_FIELD(gCoeff), QV_FIELD(bCoeff),
};

/// The results leave the record through this table alone.
constexpr Field kResultRows[] = {
    QV_FIELD(bin).writeOnly(),
};

} // namespace

constinit const TableOf<Record> kHistogram{"QvDatabaseHistogram", __FILE__, kRows};
constinit const TableOf<Record> kHistogramResults{"QvDatabaseHistogram", __FILE__, kResultRows, "statistics"};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseHistogram_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_t* pConfig)
{
    return readRecord(tuning::kHistogram, pValue, pConfig);
}

int QvDatabaseHistogram_serialize(QvDatabaseHistogram_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHistogram, pConfig, pValue);
}

int QvDatabaseHistogram_reset(QvDatabaseHistogram_t* pConfig)
{
    return clearRecord(pConfig);
}

int QvDatabaseHistogram_statistics(QvDatabaseHistogram_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHistogramResults, pConfig, pValue);
}
