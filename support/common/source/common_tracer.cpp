#include "qv_common_c/common_tracer.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>

#include "boundary.h"
#include "trace_stream.h"

QvCommonTracerHandle_t hTracer = 0;

namespace {

using namespace qv::common;

constexpr std::array<const char*, QvCommonTracerLevel_Sum> kWords = {"debug", "info", "warning", "error"};

struct Tracer {
    QvCommonTracerLevel_t level = QvCommonTracerLevel_Info;
    FILE* pStream = nullptr;
    std::unique_ptr<LineStream> pLines;

    FILE* stream() const
    {
        if (pLines != nullptr) {
            return pLines->get();
        }
        return pStream != nullptr ? pStream : stderr;
    }
};

// What a thread has said about the line it writes next.
struct Position {
    QvCommonTracerHandle_t handle;
    QvCommonTracerLevel_t level;
    const char* pFile;
    int line;
    const char* pFunction;
    bool isPending; // the prefix isn't written yet
};

constexpr Position kNoPosition = {0, QvCommonTracerLevel_Info, nullptr, 0, nullptr, false};

// The model puts it into what each thread has from its start. In a library that is loaded later it would otherwise be
// made at a thread's first trace, and the C library aborts the process when it finds no memory for it.
[[gnu::tls_model("initial-exec")]] constinit thread_local Position position = kNoPosition;

QvCommonTracerLevel_t levelOfThread()
{
    return position.level;
}

// A C caller can pass any number, so the bytes are looked at before they are taken for a level.
bool isLevel(const QvCommonTracerLevel_t& level, int last)
{
    static_assert(sizeof(level) == sizeof(int));
    int number = 0;
    std::memcpy(&number, &level, sizeof(number));
    return number >= 0 && number <= last;
}

void writePrefix(FILE* pStream)
{
    char lineText[16] = "";
    if (position.line > 0) {
        std::snprintf(lineText, sizeof(lineText), ":%d", position.line);
    }
    const bool hasFile = position.pFile != nullptr;
    const bool hasFunction = hasFile && position.pFunction != nullptr;
    // One call, so that the prefix stays together when several threads write.
    std::fprintf(pStream, "%s: %s%s%s%s%s", kWords[static_cast<size_t>(position.level)], hasFile ? position.pFile : "",
                 hasFile ? lineText : "", hasFile ? ": " : "", hasFunction ? position.pFunction : "",
                 hasFunction ? ": " : "");
}

} // namespace

int QvCommonTracer_open(QvCommonTracerOpenParam_t* pParam, QvCommonTracerHandle_t* pHandle)
{
    if (pParam == nullptr || !isClear(pHandle) || !isLevel(pParam->level, QvCommonTracerLevel_Sum)) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        auto pTracer = std::make_unique<Tracer>();
        pTracer->level = pParam->level;
        if (pParam->pWrite != nullptr) {
            pTracer->pLines = std::make_unique<LineStream>(pParam->pWrite, pParam->pUserData, levelOfThread);
            if (!pTracer->pLines->open()) {
                return QvCommonError_OutOfMemory;
            }
        } else {
            pTracer->pStream = pParam->pStream;
        }
        *pHandle = toHandle(pTracer.release());
        return QvCommonError_Success;
    });
}

int QvCommonTracer_close(QvCommonTracerHandle_t* pHandle)
{
    if (!isSet(pHandle)) {
        return QvCommonError_BadArgument;
    }
    std::unique_ptr<Tracer> pTracer(fromHandle<Tracer>(*pHandle));
    std::fflush(pTracer->stream());
    pTracer.reset();
    if (position.handle == *pHandle) {
        // Another tracer may get the same handle; it has nothing to do with this one's last position.
        position = kNoPosition;
    }
    *pHandle = 0;
    return QvCommonError_Success;
}

void QvCommonTracer_prefixSet(QvCommonTracerHandle_t handle, QvCommonTracerLevel_t level, const char* pFile, int line,
                              const char* pFunction)
{
    const bool isKnown = isLevel(level, QvCommonTracerLevel_Error);
    position = {handle, isKnown ? level : QvCommonTracerLevel_Error, pFile, line, pFunction, true};
}

FILE* QvCommonTracer_file(QvCommonTracerHandle_t handle)
{
    if (position.handle != handle) {
        position = kNoPosition;
        position.handle = handle;
    }
    const Tracer* pTracer = fromHandle<Tracer>(handle);
    const QvCommonTracerLevel_t lowest = pTracer != nullptr ? pTracer->level : QvCommonTracerLevel_Info;
    const bool isPending = position.isPending;
    position.isPending = false;
    if (position.level < lowest) {
        return sinkStream();
    }
    FILE* pStream = pTracer != nullptr ? pTracer->stream() : stderr;
    if (isPending) {
        writePrefix(pStream);
    }
    return pStream;
}
