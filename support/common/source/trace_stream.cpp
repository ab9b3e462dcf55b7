#include "trace_stream.h"

#include <algorithm>
#include <atomic>
#include <exception>

#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if defined(__SANITIZE_THREAD__) || __has_feature(thread_sanitizer)
// The sanitizer doesn't see what flockfile does.
extern "C" void __tsan_acquire(void* pLock);
extern "C" void __tsan_release(void* pLock);
#define QV_ACQUIRED(pLock) __tsan_acquire(pLock)
#define QV_RELEASING(pLock) __tsan_release(pLock)
#else
#define QV_ACQUIRED(pLock) static_cast<void>(pLock)
#define QV_RELEASING(pLock) static_cast<void>(pLock)
#endif

namespace qv::common {

namespace {

// Holds the lock of a stream. A thread may hold it several times.
class StreamLock {
public:
    explicit StreamLock(FILE* pStream) : pStream_(pStream)
    {
        flockfile(pStream_);
        QV_ACQUIRED(pStream_);
    }
    StreamLock(const StreamLock&) = delete;
    StreamLock& operator=(const StreamLock&) = delete;
    ~StreamLock()
    {
        QV_RELEASING(pStream_);
        funlockfile(pStream_);
    }

private:
    FILE* pStream_;
};

} // namespace

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
    for (Line& line : lines_) {
        if (!line.text.empty()) {
            end(line);
        }
    }
    if (target_.pWrite == nullptr) {
        std::fflush(stream());
    }
}

bool LineStream::open()
{
    // A few threads can trace lines of common length when there is no more memory.
    lines_.resize(4);
    for (Line& line : lines_) {
        line.text.reserve(250);
    }
    cookie_io_functions_t functions = {};
    functions.write = writeCookie;
    pStream_ = fopencookie(this, "w", functions);
    // Without a buffer each text arrives in the thread that writes it, so that texts of two never meet.
    return pStream_ != nullptr && std::setvbuf(pStream_, nullptr, _IONBF, 0) == 0;
}

void LineStream::write(std::initializer_list<std::string_view> pieces)
{
    const StreamLock lock(pStream_);
    for (const std::string_view piece : pieces) {
        writeCookie(this, piece.data(), piece.size());
    }
}

ssize_t LineStream::writeCookie(void* pCookie, const char* pText, size_t size)
{
    auto* pSelf = static_cast<LineStream*>(pCookie);
    const StreamLock lock(pSelf->pStream_); // stdio doesn't hold it for each part of a long text
    try {
        pSelf->take({pText, size});
    } catch (const std::exception&) { // nothing else: a thread that is cancelled here goes its way
        pSelf->takeUnjoined({pText, size});
    }
    return static_cast<ssize_t>(size);
}

LineStream::Line& LineStream::lineOfThread()
{
    Line* pFree = nullptr;
    for (Line& line : lines_) {
        if (line.text.empty()) {
            pFree = &line;
        } else if (pthread_equal(line.thread, pthread_self()) != 0) {
            return line;
        }
    }
    if (pFree == nullptr) {
        pFree = &lines_.emplace_back();
    }
    pFree->thread = pthread_self();
    return *pFree;
}

// All or nothing where it throws.
void LineStream::take(std::string_view text)
{
    Line& line = lineOfThread();
    line.text.reserve(line.text.size() + text.size() + 1);
    while (!text.empty()) {
        const size_t length = std::min(text.find('\n'), text.size());
        line.level = pLevel_();
        line.text += text.substr(0, length);
        if (length == text.size()) {
            return;
        }
        end(line);
        text.remove_prefix(length + 1);
    }
}

// Without memory to join it a text follows the line's beginning as it comes. A function is given whole lines only: it
// doesn't get this one, and the program that traces goes on.
void LineStream::takeUnjoined(std::string_view text)
{
    const StreamLock lock(stream());
    for (Line& line : lines_) {
        if (!line.text.empty() && pthread_equal(line.thread, pthread_self()) != 0) {
            if (target_.pWrite == nullptr) {
                std::fwrite(line.text.data(), 1, line.text.size(), stream());
            }
            line.text.clear();
        }
    }
    if (target_.pWrite == nullptr) {
        std::fwrite(text.data(), 1, text.size(), stream());
    }
}

// Hands on the line; then it is free. There is room for a line end.
void LineStream::end(Line& line)
{
    if (target_.pWrite != nullptr) {
        target_.pWrite(target_.pUserData, line.level, line.text.c_str(), line.text.size());
    } else {
        line.text += '\n';
        std::fwrite(line.text.data(), 1, line.text.size(), stream());
    }
    line.text.clear();
}

} // namespace qv::common
