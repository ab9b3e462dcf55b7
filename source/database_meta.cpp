#include <qv_database_c/database_meta.h>

#include <cstdint>
#include <cstring>

#include "database_trace.h"
#include "database_values.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace integerRange {
QV_RECORD(QvDatabaseIntegerRange_t);

constexpr Field kRows[] = {
    QV_FIELD(max),
    QV_FIELD(min),
    QV_FIELD(step),
};

constexpr auto kTable = QV_TABLE("integerRange", kRows);
} // namespace integerRange

namespace floatRange {
QV_RECORD(QvDatabaseFloatRange_t);

constexpr Field kRows[] = {
    QV_FIELD(max),
    QV_FIELD(min),
    QV_FIELD(step),
};

constexpr auto kTable = QV_TABLE("floatRange", kRows);
} // namespace floatRange

namespace ispChannel {
QV_RECORD(QvDatabaseRawChannelFloat_t);

constexpr Field kRows[] = {
    QV_FIELD(redChannel),
    QV_FIELD(grChannel),
    QV_FIELD(gbChannel),
    QV_FIELD(blueChannel),
};

constexpr auto kTable = QV_TABLE("ispChannel", kRows);
} // namespace ispChannel

namespace ccmConfig {
QV_RECORD(QvDatabaseMetaCcmStatus_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(ccmMatrix),
    QV_FIELD(ccmOffset),
};

constexpr auto kTable = QV_TABLE("ccmConfig", kRows);
} // namespace ccmConfig

namespace meanLuma {
QV_RECORD(QvDatabaseMetaMeanLuma_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(meanWinNum),
    QV_OBJECT(meanRoiWin, kRectangle),
    QV_FIELD(redChannelMean),
    QV_FIELD(grChannelMean),
    QV_FIELD(gbChannelMean),
    QV_FIELD(blueChannelMean),
    QV_FIELD(totalMean),
};
// clang-format on

constexpr auto kTable = QV_TABLE("meanLuma", kRows);
} // namespace meanLuma

QV_RECORD(QvDatabaseMeta_t);

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

extern constinit const TableOf<Record> kMeta = QV_TABLE("QvDatabaseMeta", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseMeta, tuning::kMeta)
QV_DEFAULT_RESET(QvDatabaseMeta, tuning::default_())

int QvDatabaseMeta_serialize2(QvDatabaseMeta_t* pConfig, QvJsonWriterHandle_t hJsonWriter, QvCommonBuffer_t* pBuffer)
{
    if (pConfig == nullptr || hJsonWriter == 0 || pBuffer == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pValue = nullptr;
    QV_TRY(QvJsonValue_create(QvJsonValueType_Null, &pValue));
    int status = QvDatabaseMeta_serialize(pConfig, pValue);
    if (status == kSuccess) {
        QvCommonBuffer_clear(pBuffer);
        status = QvJsonWriter_stringify(hJsonWriter, pValue, &pBuffer->pBegin);
    }
    QvJsonValue_delete(&pValue);
    QV_TRY(status);
    pBuffer->size = std::strlen(pBuffer->pBegin);
    pBuffer->isAllocated = true;
    // The frame's number travels in the pointer itself.
    pBuffer->pUserData = reinterpret_cast<void*>(static_cast<std::uintptr_t>(pConfig->frameCount));
    return kSuccess;
}
