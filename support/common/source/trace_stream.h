#pragma once

#include <cstddef>
#include <cstdio>
#include <initializer_list>
#include <pthread.h>
#include <string>
#include <string_view>
#include <vector>

#include <qv_common_c/common_tracer.h>

namespace qv::common {

/// The stream for levels that are off: drops all it gets. One for the process, never closed, never null.
FILE* sinkStream();

/// Where whole lines go: to a function, or else to a stream, standard error if that is null.
struct LineTarget {
    FILE* pStream = nullptr;
    QvCommonTracerWrite_t pWrite = nullptr;
    void* pUserData = nullptr;
};

/// A stdio stream that puts together what each thread writes and hands it on line by line, each line at once. Any
/// number of threads may write.
class LineStream {
public:
    /// `pLevel` tells the level of the line that the calling thread is writing.
    LineStream(const LineTarget& target, QvCommonTracerLevel_t (*pLevel)()) : target_(target), pLevel_(pLevel) {}
    LineStream(const LineStream&) = delete;
    LineStream& operator=(const LineStream&) = delete;
    /// Hands on lines that were not ended, and flushes.
    ~LineStream();

    /// False without memory; std::bad_alloc, too.
    bool open();
    FILE* get() const { return pStream_; }

    /// Writes the pieces as the calling thread's, without the way through stdio.
    void write(std::initializer_list<std::string_view> pieces);

private:
    /// What one thread has written of a line so far. Free to be taken by any while the text is empty.
    struct Line {
        pthread_t thread = {};
        QvCommonTracerLevel_t level = QvCommonTracerLevel_Info;
        std::string text;
    };

    static ssize_t writeCookie(void* pCookie, const char* pText, std::size_t size);
    Line& lineOfThread();
    void take(std::string_view text);
    void takeUnjoined(std::string_view text);
    void end(Line& line);
    FILE* stream() const { return target_.pStream != nullptr ? target_.pStream : stderr; }

    LineTarget target_;
    QvCommonTracerLevel_t (*pLevel_)();
    FILE* pStream_ = nullptr; // its lock guards the lines: the C library sees to it when a process forks
    std::vector<Line> lines_;
};

} // namespace qv::common
