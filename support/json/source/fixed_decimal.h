#pragma once

#include <cstddef>

namespace qv::json {

// The most digits behind the point that may be asked for.
constexpr int kMaximumDecimals = 17;

// Room that writeFixed may need: the largest double has 309 digits before the point.
constexpr size_t kFixedRoom = 384;

// Writes a finite number with exactly that many digits behind the point, correctly rounded (exact ties to even): the
// same characters as "%.*f" in the C locale. Returns the place behind the last one.
char* writeFixed(char* p, double value, int decimals);

// Writes an integer in decimal digits. Takes 20 bytes at most.
char* writeInteger(char* p, long long value);

} // namespace qv::json
