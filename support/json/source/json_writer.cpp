#include <qv_json_c/json_writer.h>

#include <cstdio>
#include <cstring>
#include <exception>

#include "fixed_decimal.h"
#include "text_writer.h"
#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>

using namespace qv::json;

namespace {

int traceError(int status, const char* pDetail, const char* pFunction, int line)
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, line, pFunction);
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d): %s\n", QvCommonError_text(status), status, pDetail);
    return status;
}

} // namespace

int QvJsonWriter_open(QvJsonWriterOpenParam_t* pParam, QvJsonWriterHandle_t* pHandle)
{
    if (pHandle == nullptr) {
        return QvCommonError_BadArgument;
    }
    try {
        Layout layout;
        if (pParam != nullptr) {
            layout.decimals = pParam->decimals;
            layout.itemsPerLine = pParam->elementNumberPerLine;
            layout.indent.assign(pParam->indent, strnlen(pParam->indent, sizeof(pParam->indent)));
        }
        if (layout.decimals < 0 || layout.decimals > kMaximumDecimals ||
            layout.indent.find_first_not_of(" \t") != std::string::npos) {
            return QvCommonError_BadArgument;
        }
        *pHandle = reinterpret_cast<QvJsonWriterHandle_t>(new Layout(layout));
        return QvCommonError_Success;
    } catch (const std::exception&) {
        return QvCommonError_OutOfMemory;
    }
}

int QvJsonWriter_close(QvJsonWriterHandle_t* pHandle)
{
    if (pHandle == nullptr) {
        return QvCommonError_BadArgument;
    }
    delete reinterpret_cast<Layout*>(*pHandle);
    *pHandle = 0;
    return QvCommonError_Success;
}

int QvJsonWriter_stringify(QvJsonWriterHandle_t handle, QvJsonValue_t* pValue, char** ppText)
{
    if (handle == 0 || pValue == nullptr || ppText == nullptr) {
        return QvCommonError_BadArgument;
    }
    try {
        TextBuffer buffer;
        TextWriter writer(*reinterpret_cast<const Layout*>(handle), buffer);
        if (!writer.write(*pValue)) {
            return traceError(QvCommonError_Capacity, "more than 512 nested objects and arrays", __func__, __LINE__);
        }
        *ppText = buffer.release();
        return QvCommonError_Success;
    } catch (const std::exception&) {
        return QvCommonError_OutOfMemory;
    }
}

int QvJsonWriter_save(QvJsonWriterHandle_t handle, QvJsonValue_t* pValue, const char* pFilename)
{
    if (pFilename == nullptr) {
        return QvCommonError_BadArgument;
    }
    QvCommonBuffer_t buffer = {};
    int status = QvJsonWriter_stringify(handle, pValue, &buffer.pBegin);
    if (status != QvCommonError_Success) {
        return status;
    }
    buffer.isAllocated = true;
    buffer.size = std::strlen(buffer.pBegin);
    status = QvCommonBuffer_save2(&buffer, pFilename, 0);
    QvCommonBuffer_clear(&buffer);
    return status == QvCommonError_Success ? status : traceError(status, pFilename, __func__, __LINE__);
}
