#include <cstdlib>
#include <cstring>

#include <qv_database_c/protocol_calibration.h>

#include "database_status.h"

using namespace qv::database;

namespace {

constexpr std::size_t kSize = sizeof(QvDatabaseCalibration_t);

} // namespace

int QvDatabaseProtocolCalibrationBinary_parse(QvCommonBuffer_t* pBuffer, QvDatabaseCalibration_t* pConfig)
{
    if (pBuffer == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    std::memcpy(pConfig, pBuffer->pBegin + pBuffer->offset, kSize);
    pBuffer->offset += kSize;
    pConfig->isLoaded = true;
    return kSuccess;
}

int QvDatabaseProtocolCalibrationBinary_serialize(QvDatabaseCalibration_t* pConfig, QvCommonBuffer_t* pBuffer)
{
    if (pConfig == nullptr || pBuffer == nullptr || pBuffer->pBegin != nullptr) {
        return kBadArgument;
    }
    pBuffer->pBegin = static_cast<char*>(std::calloc(1, kSize));
    if (pBuffer->pBegin == nullptr) {
        return kNoMemory;
    }
    pBuffer->size = kSize;
    pBuffer->isAllocated = true;
    std::memcpy(pBuffer->pBegin, pConfig, kSize);
    pBuffer->offset = kSize;
    return kSuccess;
}
