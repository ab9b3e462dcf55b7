#pragma once

#include <cstdio>
#include <string>

#include "qv_common_c/common_tracer.h"

namespace qv::common {

// The stream for levels that are off: drops all it gets. One for the process, never closed, never null.
FILE* sinkStream();

// A stdio stream that hands what is written to it to a function, line by line.
class LineStream {
public:
    // `pLevel` tells the level of the line that the calling thread is writing.
    LineStream(QvCommonTracerWrite_t pWrite, void* pUserData, QvCommonTracerLevel_t (*pLevel)())
        : pWrite_(pWrite), pUserData_(pUserData), pLevel_(pLevel)
    {
    }
    LineStream(const LineStream&) = delete;
    LineStream& operator=(const LineStream&) = delete;
    // Hands on a line that was not ended.
    ~LineStream();

    bool open();
    FILE* get() const { return pStream_; }

private:
    static ssize_t write(void* pCookie, const char* pText, size_t size);
    void take(const char* pText, size_t size);
    void endLine();

    QvCommonTracerWrite_t pWrite_;
    void* pUserData_;
    QvCommonTracerLevel_t (*pLevel_)();
    FILE* pStream_ = nullptr;
    std::string line_;
};

} // namespace qv::common
