#include <qv_database_c/database_auto_exposure_statistics_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseAutoExposureStatistics_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(windowSetCustomEnable),
    QV_FIELD(inputSelect),
    QV_OBJECT(rectangle, kRectangle),
};

/// The results leave the record through this table alone.
constexpr Field kStatisticsRows[] = {
    QV_FIELD_KEY(statistics.data, "data").writeOnly(),
    QV_FIELD_KEY(statistics.type, "type").writeOnly(),
};

} // namespace

constinit const TableOf<Record> kAutoExposureStatistics_2{"QvDatabaseAutoExposureStatistics_2", __FILE__, kRows};

constinit const TableOf<Record> kAutoExposureStatistics_2Results{"QvDatabaseAutoExposureStatistics_2", __FILE__,
                                                                 kStatisticsRows, "statistics"};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoExposureStatistics_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoExposureStatistics_2_t* pConfig)
{
    return readRecord(tuning::kAutoExposureStatistics_2, pValue, pConfig);
}

int QvDatabaseAutoExposureStatistics_2_serialize(QvDatabaseAutoExposureStatistics_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoExposureStatistics_2, pConfig, pValue);
}

int QvDatabaseAutoExposureStatistics_2_reset(QvDatabaseAutoExposureStatistics_2_t* pConfig)
{
    return clearRecord(pConfig);
}

int QvDatabaseAutoExposureStatistics_2_statistics(QvDatabaseAutoExposureStatistics_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoExposureStatistics_2Results, pConfig, pValue);
}
