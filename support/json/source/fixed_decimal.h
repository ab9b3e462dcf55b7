#pragma once

#include <cstddef>
#include <cstdint>

#include "decimal_digits.h"

namespace qv::json {

/// The most digits behind the point that may be asked for.
constexpr int kMaximumDecimals = 17;

/// Room that each function here may need: the largest double has 309 digits before the point.
constexpr std::size_t kFixedRoom = 384;

/// Writes a finite number with exactly that many digits behind the point, correctly rounded (exact ties to even): the
/// same characters as "%.*f" in the C locale. Returns the place behind the last one.
char* writeFixed(char* p, double value, int decimals);

/// The same in exact arithmetic, for what can't be done faster.
char* writeFixedExactly(char* p, double value, int decimals);

/// Writes an integer in decimal digits.
inline char* writeInteger(char* p, long long value)
{
    const uint64_t sign = static_cast<uint64_t>(value) >> 63;
    *p = '-';
    return writeNatural(p + sign, (static_cast<uint64_t>(value) ^ (0 - sign)) + sign);
}

} // namespace qv::json
