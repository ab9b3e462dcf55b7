#include <qv_json_c/json_reader.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <new>

#include "text_parser.h"
#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>

using namespace qv::json;

namespace {

int traceSyntaxError(const TextParser& parser, int line)
{
    const std::string text = parser.error();
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, line, "QvJsonReader_parse");
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d): %s\n", QvCommonError_text(QvCommonError_Syntax),
                 static_cast<int>(QvCommonError_Syntax), text.c_str());
    return QvCommonError_Syntax;
}

int traceFileError(int status, const char* pFilename, int line)
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, line, "QvJsonReader_load");
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d): %s\n", QvCommonError_text(status), status, pFilename);
    return status;
}

} // namespace

int QvJsonReader_open(QvJsonReaderHandle_t* pHandle)
{
    if (pHandle == nullptr) {
        return QvCommonError_BadArgument;
    }
    auto* pMemory = new (std::nothrow) ParserMemory;
    if (pMemory == nullptr) {
        return QvCommonError_OutOfMemory;
    }
    *pHandle = reinterpret_cast<QvJsonReaderHandle_t>(pMemory);
    return QvCommonError_Success;
}

int QvJsonReader_close(QvJsonReaderHandle_t* pHandle)
{
    if (pHandle == nullptr) {
        return QvCommonError_BadArgument;
    }
    delete reinterpret_cast<ParserMemory*>(*pHandle);
    *pHandle = 0;
    return QvCommonError_Success;
}

int QvJsonReader_parse(QvJsonReaderHandle_t handle, const char* pBegin, const char* pEnd, QvJsonValue_t** ppValue)
{
    if (handle == 0 || pBegin == nullptr || pEnd == nullptr || pEnd < pBegin || ppValue == nullptr ||
        *ppValue != nullptr) {
        return QvCommonError_BadArgument;
    }
    QvJsonValue_t* pRoot = nullptr;
    int status = QvJsonValue_create(QvJsonValueType_Null, &pRoot);
    if (status != QvCommonError_Success) {
        return status;
    }
    try {
        TextParser parser(*reinterpret_cast<ParserMemory*>(handle), pBegin, pEnd);
        if (!parser.parse(pRoot)) {
            status = traceSyntaxError(parser, __LINE__);
        }
    } catch (const std::exception&) {
        status = QvCommonError_OutOfMemory;
    }
    if (status != QvCommonError_Success) {
        QvJsonValue_delete(&pRoot);
    }
    *ppValue = pRoot;
    return status;
}

int QvJsonReader_load(QvJsonReaderHandle_t handle, const char* pFilename, QvJsonValue_t** ppValue)
{
    if (handle == 0 || pFilename == nullptr || ppValue == nullptr || *ppValue != nullptr) {
        return QvCommonError_BadArgument;
    }
    QvCommonBuffer_t buffer = {};
    int status = QvCommonBuffer_load2(pFilename, 0, 0, &buffer);
    if (status == QvCommonError_Success) {
        const char* pBegin = buffer.pBegin != nullptr ? buffer.pBegin : "";
        status = QvJsonReader_parse(handle, pBegin, pBegin + buffer.size, ppValue);
    }
    QvCommonBuffer_clear(&buffer);
    return status == QvCommonError_Success ? status : traceFileError(status, pFilename, __LINE__);
}
