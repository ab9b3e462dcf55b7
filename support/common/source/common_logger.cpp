#include <qv_common_c/common_logger.h>

#include <cstring>
#include <memory>

#include "boundary.h"
#include <qv_common_c/common_tracer.h>

using namespace qv::common;

int QvCommonLogger_open(QvCommonLoggerOpenParam_t* pParam, QvCommonLoggerHandle_t* pHandle)
{
    if (pParam == nullptr || !isClear(pHandle)) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        *pHandle = toHandle(new QvCommonLoggerOpenParam_t(*pParam));
        return QvCommonError_Success;
    });
}

int QvCommonLogger_close(QvCommonLoggerHandle_t* pHandle)
{
    if (!isSet(pHandle)) {
        return QvCommonError_BadArgument;
    }
    delete fromHandle<QvCommonLoggerOpenParam_t>(*pHandle);
    *pHandle = 0;
    return QvCommonError_Success;
}

int QvCommonLogger_log(QvCommonLoggerHandle_t handle, const char* pText)
{
    if (pText == nullptr) {
        return QvCommonError_BadArgument;
    }
    if (handle == 0) {
        QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Warning, nullptr, 0, nullptr);
        std::fprintf(QvCommonTracer_file(hTracer), "%s\n", pText);
        return QvCommonError_BadArgument;
    }
    const auto* pLogger = fromHandle<const QvCommonLoggerOpenParam_t>(handle);
    if (pLogger->pWrite != nullptr) {
        return pLogger->pWrite(pLogger->pUserData, pText, std::strlen(pText));
    }
    FILE* pStream = pLogger->pStream != nullptr ? pLogger->pStream : stderr;
    const bool isWritten = std::fprintf(pStream, "%s\n", pText) >= 0 && std::fflush(pStream) == 0;
    return isWritten ? QvCommonError_Success : QvCommonError_Write;
}
