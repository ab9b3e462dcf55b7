#include <qv_database_c/database_auto_exposure_statistics_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseAutoExposureStatistics_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(windowSetCustomEnable),
    QV_FIELD(inputSelect),
};

namespace windows {
using Record = Windows;

constexpr Field kRows[] = {
    QV_FIELD_KEY(read, "windows").readOnly(),
    QV_FIELD_KEY(written, "windows").writeOnly(),
};

} // namespace windows

} // namespace

constinit const TableOf<Record> kAutoExposureStatistics_2{"QvDatabaseProtocolSimulator_autoExposureStatistics_2",
                                                          __FILE__, kRows};

constinit const TableOf<Windows> kWindows{"QvDatabaseProtocolSimulator_autoExposureStatistics_2", __FILE__,
                                          windows::kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoExposureStatistics_2_parse(QvJsonValue_t* pValue,
                                                               QvDatabaseAutoExposureStatistics_2_t* pConfig)
{
    const int status = readRecord(simulator::kAutoExposureStatistics_2, pValue, pConfig);
    if (status != kSuccess) {
        return status;
    }
    // Unlike every other field, the rectangle doesn't keep its value when the document lacks it: what is missing is
    // zero.
    simulator::Windows windows{};
    readTable(simulator::kWindows, pValue, &windows);
    pConfig->rectangle.offset.x = windows.read[0];
    pConfig->rectangle.offset.y = windows.read[1];
    pConfig->rectangle.width = windows.read[2];
    pConfig->rectangle.height = windows.read[3];
    return kSuccess;
}

int QvDatabaseProtocolSimulator_autoExposureStatistics_2_serialize(QvDatabaseAutoExposureStatistics_2_t* pConfig,
                                                                   QvJsonValue_t* pValue)
{
    const int status = writeRecord(simulator::kAutoExposureStatistics_2, pConfig, pValue);
    if (status != kSuccess) {
        return status;
    }
    const QvDatabaseRectangle_t& rectangle = pConfig->rectangle;
    const simulator::Windows windows{{}, {rectangle.offset.x, rectangle.offset.y, rectangle.width, rectangle.height}};
    return writeTable(simulator::kWindows, &windows, pValue);
}
