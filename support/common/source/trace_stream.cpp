#include "trace_stream.h"

#include <algorithm>
#include <atomic>

namespace qv::common {

FILE* sinkStream()
{
    // A stream that was opened for reading only refuses output at the door: fprintf looks at that flag before it looks
    // at the format, so a line that nobody wants costs a call and no formatting. (A stream of its own, with or without
    // a buffer, would format first and drop afterwards.) The refusals set errno, which tracing doesn't keep anyway.
    static std::atomic<FILE*> sink = nullptr;
    FILE* pSink = sink.load(std::memory_order_acquire);
    if (pSink != nullptr) {
        return pSink;
    }
    FILE* pNew = fopencookie(nullptr, "r", cookie_io_functions_t{});
    if (pNew == nullptr) {
        // Only for now: a shortage of memory may pass.
        return stderr;
    }
    if (!sink.compare_exchange_strong(pSink, pNew, std::memory_order_acq_rel)) {
        std::fclose(pNew);
        return pSink;
    }
    return pNew;
}

LineStream::~LineStream()
{
    if (pStream_ != nullptr) {
        std::fclose(pStream_);
    }
    if (!line_.empty()) {
        endLine();
    }
}

bool LineStream::open()
{
    cookie_io_functions_t functions = {};
    functions.write = write;
    pStream_ = fopencookie(this, "w", functions);
    return pStream_ != nullptr && std::setvbuf(pStream_, nullptr, _IOLBF, 0) == 0;
}

ssize_t LineStream::write(void* pCookie, const char* pText, size_t size)
{
    try {
        static_cast<LineStream*>(pCookie)->take(pText, size);
    } catch (...) {
        // A trace that finds no memory is lost; the program that traces goes on.
        static_cast<LineStream*>(pCookie)->line_.clear();
    }
    return static_cast<ssize_t>(size);
}

void LineStream::take(const char* pText, size_t size)
{
    const char* pEnd = pText + size;
    while (pText != pEnd) {
        const char* pLineEnd = std::find(pText, pEnd, '\n');
        line_.append(pText, pLineEnd);
        if (pLineEnd == pEnd) {
            return;
        }
        endLine();
        pText = pLineEnd + 1;
    }
}

void LineStream::endLine()
{
    pWrite_(pUserData_, pLevel_(), line_.c_str(), line_.size());
    line_.clear();
}

} // namespace qv::common
