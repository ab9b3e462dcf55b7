#include <qv_database_c/database_meta.h>

#include <cstdint>
#include <cstring>

#include "database_forms.h"
#include "database_trace.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace integerRange {
using Record = QvDatabaseIntegerRange_t;

constexpr Field kRows[] = {
    QV_FIELD(max),
    QV_FIELD(min),
    QV_FIELD(step),
};

constexpr TableOf<Record> kTable{"integerRange", __FILE__, kRows};
} // namespace integerRange

namespace floatRange {
using Record = QvDatabaseFloatRange_t;

constexpr Field kRows[] = {
    QV_FIELD(max),
    QV_FIELD(min),
    QV_FIELD(step),
};

constexpr TableOf<Record> kTable{"floatRange", __FILE__, kRows};
} // namespace floatRange

namespace ispChannel {
using Record = QvDatabaseRawChannelFloat_t;

constexpr Field kRows[] = {
    QV_FIELD(redChannel),
    QV_FIELD(grChannel),
    QV_FIELD(gbChannel),
    QV_FIELD(blueChannel),
};

constexpr TableOf<Record> kTable{"ispChannel", __FILE__, kRows};
} // namespace ispChannel

namespace ccmConfig {
using Record = QvDatabaseMetaCcmStatus_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(ccmMatrix),
    QV_FIELD(ccmOffset),
};

constexpr TableOf<Record> kTable{"ccmConfig", __FILE__, kRows};
} // namespace ccmConfig

namespace meanLuma {
using Record = QvDatabaseMetaMeanLuma_t;

constexpr Field kRows[] = {
    QV_FIELD(meanWinNum),    QV_OBJECT(meanRoiWin, kRectangle), QV_FIELD(redChannelMean), QV_FIELD(grChannelMean),
    QV_FIELD(gbChannelMean), QV_FIELD(blueChannelMean),         QV_FIELD(totalMean),
};

constexpr TableOf<Record> kTable{"meanLuma", __FILE__, kRows};
} // namespace meanLuma

using Record = QvDatabaseMeta_t;

constexpr Field kRows[] = {
    QV_FIELD(bufChainId).writtenUnsigned(),
    QV_FIELD(chipId),
    QV_FIELD(frameCount),
    QV_FIELD(apertureSize),
    QV_FIELD(isoStrength),
    QV_FIELD(junctionTemperature),
    QV_FIELD(blackLevelPedestal),
    QV_FIELD(exposureNum),
    QV_FIELD(integrationTime),
    QV_OBJECT(integrationTimeRange, integerRange::kTable),
    QV_FIELD(sensorAnalogGain),
    QV_OBJECT(sensorAnalogGainRange, floatRange::kTable),
    QV_FIELD(sensorDigitalGain),
    QV_OBJECT(sensorDigitalGainRange, floatRange::kTable),
    QV_OBJECT(wbGain, ispChannel::kTable),
    QV_FIELD(dualConvGain),
    QV_OBJECT(ispDgain, ispChannel::kTable),
    QV_OBJECT(ispWbGain, ispChannel::kTable),
    // What describes the sensor mode goes out with each frame and is never taken from a file.
    QV_FIELD(bitWidth).writeOnly(),
    QV_FIELD(width).writeOnly(),
    QV_FIELD(height).writeOnly(),
    QV_FIELD(bayerPattern).writeOnly(),
    QV_FIELD(sensorMode).writeOnly(),
    QV_FIELD(luxIndex),
    QV_FIELD(totalGain),
    QV_FIELD(edrValue),
    QV_OBJECT(ccmConfig, ccmConfig::kTable),
    QV_OBJECT(meanLuma, meanLuma::kTable),
};

Record default_()
{
    Record record{};
    record.tableNumber = 1;
    return record;
}

} // namespace

constinit const TableOf<Record> kMeta{"QvDatabaseMeta", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseMeta_parse(QvJsonValue_t* pValue, QvDatabaseMeta_t* pConfig)
{
    return readRecord(tuning::kMeta, pValue, pConfig);
}

int QvDatabaseMeta_serialize(QvDatabaseMeta_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kMeta, pConfig, pValue);
}

int QvDatabaseMeta_reset(QvDatabaseMeta_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}

int QvDatabaseMeta_serialize2(QvDatabaseMeta_t* pConfig, QvJsonWriterHandle_t hJsonWriter, QvCommonBuffer_t* pBuffer)
{
    if (pConfig == nullptr || hJsonWriter == 0 || pBuffer == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pValue = nullptr;
    int status = QvJsonValue_create(QvJsonValueType_Null, &pValue);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvDatabaseMeta_serialize(pConfig, pValue);
    if (status == kSuccess) {
        QvCommonBuffer_clear(pBuffer);
        status = QvJsonWriter_stringify(hJsonWriter, pValue, &pBuffer->pBegin);
    }
    QvJsonValue_delete(&pValue);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    pBuffer->size = std::strlen(pBuffer->pBegin);
    pBuffer->isAllocated = true;
    // The frame's number travels in the pointer itself.
    pBuffer->pUserData = reinterpret_cast<void*>(static_cast<std::uintptr_t>(pConfig->frameCount));
    return kSuccess;
}
