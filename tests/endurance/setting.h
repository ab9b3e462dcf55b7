#pragma once

// Each test of this folder has a short setting, for every build, and a long one, for the night.

#include <cstdlib>

namespace qv::test {

inline bool isNight()
{
    return std::getenv("QV_NIGHT") != nullptr;
}

} // namespace qv::test
