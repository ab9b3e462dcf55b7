#include <qv_database_c/database_sensor.h>

#include <cstdio>
#include <cstring>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace compress {
using Record = QvDatabaseSensor_Compress_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(xBit),
    QV_FIELD(yBit),
};

constexpr TableOf<Record> kTable{"compress", __FILE__, kRows};
} // namespace compress

namespace mode {
using Record = QvDatabaseSensor_Mode_t;

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

constexpr TableOf<Record> kTable{"mode", __FILE__, kRows};
} // namespace mode

namespace testPattern {
using Record = QvDatabaseSensor_TestPattern_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(type),
};

constexpr TableOf<Record> kTable{"testPattern", __FILE__, kRows};
} // namespace testPattern

namespace range {
using Record = QvDatabaseSensorRange_t;

// The document begins with the minimum, unlike the record.
constexpr Field kRows[] = {
    QV_FIELD(min),
    QV_FIELD(max),
    QV_FIELD(step),
};

constexpr TableOf<Record> kTable{"sensorRange", __FILE__, kRows};
} // namespace range

namespace aeInfo {
using Record = QvDatabaseSensorAeInfo_t;

constexpr Field kRows[] = {
    QV_OBJECT(aGainRange, range::kTable),
    QV_OBJECT(dGainRange, range::kTable),
    QV_OBJECT(intTimeRange, range::kTable),
};

constexpr TableOf<Record> kTable{"listInfo", __FILE__, kRows};
} // namespace aeInfo

namespace driverMode {
using Record = QvDatabaseSensor_DrvModeInfo_t;

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

constexpr TableOf<Record> kTable{"listInfo", __FILE__, kRows};
} // namespace driverMode

namespace listInfo {
using Record = QvDatabaseSensor_ListInfo_t;

constexpr Field kRows[] = {
    QV_FIELD(number),
    QV_FIELD(name),
    QV_OBJECT(drvModeInfos, driverMode::kTable).countedBy(QV_COUNTER(number)),
};

constexpr TableOf<Record> kTable{"listInfo", __FILE__, kRows};
} // namespace listInfo

namespace connectPort {
using Record = QvDatabaseSensor_ConnectPortInfo_t;

constexpr Field kRows[] = {
    QV_FIELD(chipId),
    QV_FIELD(name),
};

constexpr TableOf<Record> kTable{"QvDatabaseSensor", __FILE__, kRows};
} // namespace connectPort

using Record = QvDatabaseSensor_t;

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

constinit const TableOf<Record> kSensor{"QvDatabaseSensor", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseSensor_parse(QvJsonValue_t* pValue, QvDatabaseSensor_t* pConfig)
{
    return readRecord(tuning::kSensor, pValue, pConfig);
}

int QvDatabaseSensor_serialize(QvDatabaseSensor_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kSensor, pConfig, pValue);
}

int QvDatabaseSensor_reset(QvDatabaseSensor_t* pConfig)
{
    // Goes straight to the copy: callers answer for the pointer.
    const QvDatabaseSensor_t defaults = tuning::default_();
    std::memcpy(pConfig, &defaults, sizeof defaults);
    std::snprintf(pConfig->driverName, sizeof pConfig->driverName, "ov2775");
    return kSuccess;
}
