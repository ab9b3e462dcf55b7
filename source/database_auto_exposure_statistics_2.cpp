#include <qv_database_c/database_auto_exposure_statistics_2.h>

#include "database_values.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoExposureStatistics_2_t);

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

extern constinit const TableOf<Record> kAutoExposureStatistics_2 =
    QV_TABLE("QvDatabaseAutoExposureStatistics_2", kRows);

extern constinit const TableOf<Record> kAutoExposureStatistics_2Results =
    QV_TABLE("QvDatabaseAutoExposureStatistics_2", kStatisticsRows, "statistics");

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoExposureStatistics_2, tuning::kAutoExposureStatistics_2)
QV_CLEARED_RESET(QvDatabaseAutoExposureStatistics_2)

int QvDatabaseAutoExposureStatistics_2_statistics(QvDatabaseAutoExposureStatistics_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoExposureStatistics_2Results, pConfig, pValue);
}
