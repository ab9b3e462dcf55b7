#include <qv_initialization/initialization_reader.h>

#include <cstdio>
#include <new>
#include <utility>

#include "initialization_parser.h"
#include <qv_common_c/common_tracer.h>

namespace {

using namespace qv::initialization;

/// A reader has nothing to remember; its address is its handle.
struct Reader {};

void trace(const SyntaxError& error, int line, const char* pFunction)
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, line, pFunction);
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d): expected %s at line %zu, column %zu\n",
                 QvCommonError_text(QvCommonError_Syntax), QvCommonError_Syntax, error.pExpected, error.line,
                 error.column);
}

} // namespace

int QvInitializationReader_open(QvInitializationReaderHandle_t* phReader)
{
    if (phReader == nullptr || *phReader != 0) {
        return QvCommonError_BadArgument;
    }
    *phReader = reinterpret_cast<QvInitializationReaderHandle_t>(new (std::nothrow) Reader);
    return *phReader != 0 ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

int QvInitializationReader_close(QvInitializationReaderHandle_t* phReader)
{
    if (phReader == nullptr || *phReader == 0) {
        return QvCommonError_BadArgument;
    }
    delete reinterpret_cast<Reader*>(*phReader);
    *phReader = 0;
    return QvCommonError_Success;
}

int QvInitializationReader_parse(QvInitializationReaderHandle_t hReader, QvCommonBuffer_t* pBuffer,
                                 QvCommonDQueueHandle_t hQueue)
{
    if (hReader == 0 || pBuffer == nullptr || hQueue == 0 || (pBuffer->pBegin == nullptr && pBuffer->size > 0)) {
        return QvCommonError_BadArgument;
    }
    const char* pFunction = static_cast<const char*>(__func__);
    return statusOf([pBuffer, hQueue, pFunction] {
        try {
            for (SectionPointer& pSection : Parser().parse({pBuffer->pBegin, pBuffer->size})) {
                pushBack(hQueue, std::move(pSection));
            }
        } catch (const SyntaxError& error) {
            trace(error, __LINE__, pFunction);
            throw StatusError{QvCommonError_Syntax};
        }
    });
}
