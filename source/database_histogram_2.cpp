#include <qv_database_c/database_histogram_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseHistogram_2_t;

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

constinit const TableOf<Record> kHistogram_2{"QvDatabaseHistogram_2", __FILE__, kRows};
constinit const TableOf<Record> kHistogram_2Results{"QvDatabaseHistogram_2", __FILE__, kResultRows, "statistics"};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseHistogram_2_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_2_t* pConfig)
{
    return readRecord(tuning::kHistogram_2, pValue, pConfig);
}

int QvDatabaseHistogram_2_serialize(QvDatabaseHistogram_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHistogram_2, pConfig, pValue);
}

int QvDatabaseHistogram_2_reset(QvDatabaseHistogram_2_t* pConfig)
{
    return clearRecord(pConfig);
}

int QvDatabaseHistogram_2_statistics(QvDatabaseHistogram_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kHistogram_2Results, pConfig, pValue);
}
