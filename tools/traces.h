#pragma once

#include <cstddef>
#include <string>

#include <qv_common_c/common_tracer.h>

namespace qv::tools {

/// Sorts the library's trace lines: results of `info` to standard output, warnings to standard error. The first line of
/// an error is kept, since it names the place.
struct Traces {
    bool showsInfo = false;
    std::string firstError;

    /// The tracer's receiver; pUserData is a Traces.
    static int write(void* pUserData, QvCommonTracerLevel_t level, const char* pText, std::size_t length);
};

} // namespace qv::tools
