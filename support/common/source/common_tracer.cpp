#include <qv_common_c/common_tracer.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>

#include "boundary.h"
#include "trace_stream.h"

QvCommonTracerHandle_t hTracer = 0;

namespace {

using namespace qv::common;

constexpr std::array<const char*, QvCommonTracerLevel_Sum> kWords = {"debug", "info", "warning", "error"};

struct Tracer {
    QvCommonTracerLevel_t level;
    LineStream lines;
};

constexpr QvCommonTracerLevel_t kBuiltInLevel = QvCommonTracerLevel_Info;

/// What a thread has said about the line it writes next.
struct Position {
    QvCommonTracerHandle_t handle;
    QvCommonTracerLevel_t level;
    const char* pFile;
    int line;
    const char* pFunction;
    bool isPending; // the prefix isn't written yet
};

constexpr Position kNoPosition = {0, QvCommonTracerLevel_Info, nullptr, 0, nullptr, false};

/// The model puts it into what each thread has from its start. In a library that is loaded later it would otherwise be
/// made at a thread's first trace, and the C library aborts the process when it finds no memory for it.
[[gnu::tls_model("initial-exec")]] constinit thread_local Position position = kNoPosition;

QvCommonTracerLevel_t levelOfThread()
{
    return position.level;
}

/// A C caller can pass any number, so the bytes are looked at before they are taken for a level.
bool isLevel(const QvCommonTracerLevel_t& level, int last)
{
    static_assert(sizeof(level) == sizeof(int));
    int number = 0;
    std::memcpy(&number, &level, sizeof(number));
    return number >= 0 && number <= last;
}

void writePrefix(LineStream& lines)
{
    constexpr std::string_view kBehind = ": ";
    char lineText[16] = "";
    if (position.line > 0) {
        std::snprintf(lineText, sizeof(lineText), ":%d", position.line);
    }
    const std::string_view word = kWords[static_cast<std::size_t>(position.level)];
    if (position.pFile == nullptr) {
        lines.write({word, kBehind});
    } else if (position.pFunction == nullptr) {
        lines.write({word, kBehind, position.pFile, lineText, kBehind});
    } else {
        lines.write({word, kBehind, position.pFile, lineText, kBehind, position.pFunction, kBehind});
    }
}

/// Null without memory.
std::unique_ptr<Tracer> makeTracer(QvCommonTracerLevel_t level, const LineTarget& target) noexcept
{
    try {
        auto pTracer = std::unique_ptr<Tracer>(new Tracer{level, {target, levelOfThread}});
        if (pTracer->lines.open()) {
            return pTracer;
        }
    } catch (const std::bad_alloc&) {
        // The same outcome.
    }
    return nullptr;
}

/// The tracer of handle 0, made when something is first written to it and kept for good. Null without memory.
Tracer* builtInTracer()
{
    static std::atomic<Tracer*> builtIn = nullptr;
    Tracer* pTracer = builtIn.load(std::memory_order_acquire);
    if (pTracer == nullptr) {
        std::unique_ptr<Tracer> pNew = makeTracer(kBuiltInLevel, {});
        if (pNew != nullptr && builtIn.compare_exchange_strong(pTracer, pNew.get(), std::memory_order_acq_rel)) {
            pTracer = pNew.release();
        }
    }
    return pTracer;
}

} // namespace

int QvCommonTracer_open(QvCommonTracerOpenParam_t* pParam, QvCommonTracerHandle_t* pHandle)
{
    if (pParam == nullptr || !isClear(pHandle) || !isLevel(pParam->level, QvCommonTracerLevel_Sum)) {
        return QvCommonError_BadArgument;
    }
    std::unique_ptr<Tracer> pTracer = makeTracer(pParam->level, {pParam->pStream, pParam->pWrite, pParam->pUserData});
    if (pTracer == nullptr) {
        return QvCommonError_OutOfMemory;
    }
    *pHandle = toHandle(pTracer.release());
    return QvCommonError_Success;
}

int QvCommonTracer_close(QvCommonTracerHandle_t* pHandle)
{
    if (!isSet(pHandle)) {
        return QvCommonError_BadArgument;
    }
    delete fromHandle<Tracer>(*pHandle);
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
    Tracer* pTracer = fromHandle<Tracer>(handle);
    const QvCommonTracerLevel_t lowest = pTracer != nullptr ? pTracer->level : kBuiltInLevel;
    const bool isPending = position.isPending;
    position.isPending = false;
    if (position.level < lowest) {
        return sinkStream();
    }
    if (pTracer == nullptr) {
        pTracer = builtInTracer();
    }
    if (pTracer == nullptr) {
        return stderr; // the text at least
    }
    if (isPending) {
        writePrefix(pTracer->lines);
    }
    return pTracer->lines.get();
}
