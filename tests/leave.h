#pragma once

#include <cstdlib>

#include <unistd.h>

extern "C" void __gcov_dump() __attribute__((weak));

namespace qv::test {

/// Ends a forked process at once, without what its parent does at its end. Where lines are counted it goes the long way,
/// which writes the counts.
[[noreturn]] inline void leave(int status)
{
    if (&__gcov_dump != nullptr) {
        std::exit(status);
    }
    _exit(status);
}

} // namespace qv::test
