#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "text_bytes.h"

// Short numbers in decimal digits, without loops or divisions, for the inside of lists.
namespace qv::json {

/// The digits of all numbers below 1000, the first one in the lowest byte, as values.
constexpr auto kThreeDigits = [] {
    std::array<uint32_t, 1000> digits = {};
    for (uint32_t value = 0; value < 1000; ++value) {
        digits[value] = value / 100 | value / 10 % 10 << 8 | value % 10 << 16;
    }
    return digits;
}();

/// The same of a number below 10^4.
inline uint32_t fourDigits(uint32_t value)
{
    const uint32_t thousands = value * 8389 >> 23;
    return thousands | kThreeDigits[value - thousands * 1000] << 8;
}

/// The eight digits of a number below 10^8: each step splits all parts at once.
inline uint64_t eightDigits(uint32_t value)
{
    const uint64_t high = value / 10000;
    const uint64_t quads = high | (value - high * 10000) << 32;
    const uint64_t hundreds = quads * 10486 >> 20 & 0x0000007F0000007F;
    const uint64_t pairs = hundreds | (quads - hundreds * 100) << 16;
    const uint64_t tens = pairs * 103 >> 10 & 0x000F000F000F000F;
    return tens | (pairs - tens * 10) << 8;
}

/// Eight digits as text. All eight bytes are written, whatever of them is used.
inline void storeDigits(char* p, uint64_t digits)
{
    storeEight(p, digits + repeated('0'));
}

/// Writes a number below 10^4 and the ", " behind it at once. Returns the place behind both; up to three bytes behind
/// that are written, too.
inline char* writeShortItem(char* p, uint32_t value)
{
    constexpr uint64_t kBehind = uint64_t{','} << 32 | uint64_t{' '} << 40;
    const uint64_t digits = fourDigits(value);
    const unsigned zeros = unmarkedBytes(digits | uint64_t{1} << 24); // the last digit stays
    storeEight(p, (digits + uint64_t{0x30303030} + kBehind) >> zeros * 8);
    return p + 6 - zeros;
}

/// The same of a number below 10^5; up to five bytes behind the blank are written, too.
inline char* writeFiveDigitItem(char* p, uint32_t value)
{
    constexpr uint64_t kBehind = uint64_t{','} << 40 | uint64_t{' '} << 48;
    const uint64_t first = uint64_t{value} * 3518437209 >> 45;
    const uint64_t digits = first | uint64_t{fourDigits(value - static_cast<uint32_t>(first) * 10000)} << 8;
    const unsigned zeros = unmarkedBytes(digits | uint64_t{1} << 32); // the last digit stays
    storeEight(p, (digits + uint64_t{0x3030303030} + kBehind) >> zeros * 8);
    return p + 7 - zeros;
}

/// Any number.
char* writeLongNatural(char* p, uint64_t value);

/// Writes a number without leading zeros. Returns the place behind it; up to seven bytes behind that are written, too.
inline char* writeNatural(char* p, uint64_t value)
{
    if (value < 10000) {
        const uint64_t digits = fourDigits(static_cast<uint32_t>(value));
        const unsigned zeros = unmarkedBytes(digits | uint64_t{1} << 24); // the last digit stays
        storeDigits(p, digits >> zeros * 8);
        return p + 4 - zeros;
    }
    if (value < 100000000) {
        const uint64_t digits = eightDigits(static_cast<uint32_t>(value));
        const unsigned zeros = unmarkedBytes(digits);
        storeDigits(p, digits >> zeros * 8);
        return p + 8 - zeros;
    }
    return writeLongNatural(p, value);
}

/// Writes a float with six digits behind the point, as writeFixed does, where it is short and no tie. Returns the place
/// behind it, or null with nothing but the byte at p changed.
inline char* writeShortFixed(char* p, double value)
{
    constexpr double kScale = 1e6;
    constexpr uint32_t kWhole = 1000000;
    const auto bits = std::bit_cast<uint64_t>(value);
    *p = '-';
    p += bits >> 63;
    const double product = std::bit_cast<double>(bits << 1 >> 1) * kScale;
    if (!(product < 1e15)) { // nor is anything that isn't finite
        return nullptr;
    }
    // Ties are doubles here, so what is above or below one as a double is so exactly, too. Only at one the product may
    // have been rounded to it.
    const auto floor = static_cast<int64_t>(product);
    const double rest = product - static_cast<double>(floor) - 0.5;
    if (rest == 0) {
        return nullptr;
    }
    const auto number = static_cast<uint64_t>(floor + (rest > 0 ? 1 : 0));
    if (number < 100000000) {
        // One or two digits before the point come from the same eight.
        const uint64_t digits = eightDigits(static_cast<uint32_t>(number));
        const unsigned zeros = number < kWhole * 10 ? 1 : 0;
        storeDigits(p, digits >> zeros * 8);
        p += 2 - zeros;
        *p++ = '.';
        storeDigits(p, digits >> 16);
        return p + 6;
    }
    p = writeNatural(p, number / kWhole);
    *p++ = '.';
    storeDigits(p, eightDigits(static_cast<uint32_t>(number % kWhole)) >> 16);
    return p + 6;
}

} // namespace qv::json
