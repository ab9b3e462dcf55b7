#include <qv_database_c/database_sensor.h>

#include <cstdio>
#include <cstring>

#include "database_values.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace compress {
QV_RECORD(QvDatabaseSensor_Compress_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(xBit),
    QV_FIELD(yBit),
};

constexpr auto kTable = QV_TABLE("compress", kRows);
} // namespace compress

namespace mode {
QV_RECORD(QvDatabaseSensor_Mode_t);

constexpr Field kRows[] = {
    QV_FIELD(autoFocusMode),
    QV_FIELD(bayerPattern),
    QV_FIELD(bitWidth),
    QV_OBJECT(compress, compress::kTable),
    QV_FIELD(fpsMax),
    QV_FIELD(nativeMode),
    QV_OBJECT(rectangle, kRectangle),
    QV_FIELD(stitchingMode),
    QV_FIELD(type),
};

constexpr auto kTable = QV_TABLE("mode", kRows);
} // namespace mode

namespace testPattern {
QV_RECORD(QvDatabaseSensor_TestPattern_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(type),
};

constexpr auto kTable = QV_TABLE("testPattern", kRows);
} // namespace testPattern

namespace range {
QV_RECORD(QvDatabaseSensorRange_t);

// The document begins with the minimum, unlike the record.
constexpr Field kRows[] = {
    QV_FIELD(min),
    QV_FIELD(max),
    QV_FIELD(step),
};

constexpr auto kTable = QV_TABLE("sensorRange", kRows);
} // namespace range

namespace aeInfo {
QV_RECORD(QvDatabaseSensorAeInfo_t);

constexpr Field kRows[] = {
    QV_OBJECT(aGainRange, range::kTable),
    QV_OBJECT(dGainRange, range::kTable),
    QV_OBJECT(intTimeRange, range::kTable),
};

constexpr auto kTable = QV_TABLE("listInfo", kRows);
} // namespace aeInfo

namespace driverMode {
QV_RECORD(QvDatabaseSensor_DrvModeInfo_t);

constexpr Field kRows[] = {
    QV_FIELD(index),
    QV_FIELD(width),
    QV_FIELD(height),
    // Negative values go out as large positive ones and come back as they were.
    QV_FIELD(sensorType).writtenUnsigned(),
    QV_FIELD(stitchingMode).writtenUnsigned(),
    QV_FIELD(nativeMode).writtenUnsigned(),
    QV_FIELD(bitWidth),
    QV_FIELD(bayerPattern).writtenUnsigned(),
    QV_FIELD(maxFps),
    QV_FIELD(afMode).writtenUnsigned(),
    QV_FIELD(dataType),
    QV_FIELD(itfType),
    // The driver's ranges go out for information and never come back in.
    QV_OBJECT(aeInfo, aeInfo::kTable).writeOnly(),
};

constexpr auto kTable = QV_TABLE("listInfo", kRows);
} // namespace driverMode

namespace listInfo {
QV_RECORD(QvDatabaseSensor_ListInfo_t);

constexpr Field kRows[] = {
    QV_FIELD(number),
    QV_FIELD(name),
    QV_OBJECT(drvModeInfos, driverMode::kTable).countedBy(QV_COUNTER(number)),
};

constexpr auto kTable = QV_TABLE("listInfo", kRows);
} // namespace listInfo

namespace connectPort {
QV_RECORD(QvDatabaseSensor_ConnectPortInfo_t);

constexpr Field kRows[] = {
    QV_FIELD(chipId),
    QV_FIELD(name),
};

constexpr auto kTable = QV_TABLE("QvDatabaseSensor", kRows);
} // namespace connectPort

QV_RECORD(QvDatabaseSensor_t);

constexpr Field kRows[] = {
    QV_FIELD(driverName),
    QV_FIELD_KEY(driverName, "name").readOnly(), // an older key; it wins where both stand
    QV_FIELD(modeIdx),
    QV_FIELD(modeNumber),
    QV_OBJECT(modes, mode::kTable).whole(),
    QV_OBJECT(testPattern, testPattern::kTable),
    QV_OBJECT_KEY(testPattern, "pattern", testPattern::kTable).twin(),
    QV_FIELD(listInfoNumber),
    QV_OBJECT(listInfos, listInfo::kTable).countedBy(QV_COUNTER(listInfoNumber)),
    QV_FIELD(connectPortInfoNumber),
    QV_OBJECT(connectPortInfos, connectPort::kTable).countedBy(QV_COUNTER(connectPortInfoNumber)),
};

Record default_()
{
    return {};
}

} // namespace

extern constinit const TableOf<Record> kSensor = QV_TABLE("QvDatabaseSensor", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseSensor, tuning::kSensor)

int QvDatabaseSensor_reset(QvDatabaseSensor_t* pConfig)
{
    // Goes straight to the copy: callers answer for the pointer.
    const QvDatabaseSensor_t defaults = tuning::default_();
    std::memcpy(pConfig, &defaults, sizeof defaults);
    std::snprintf(pConfig->driverName, sizeof pConfig->driverName, "ov2775");
    return kSuccess;
}
