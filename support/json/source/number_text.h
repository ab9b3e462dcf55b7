#pragma once

#include <array>
#include <cstddef>

#include "text_bytes.h"
#include <qv_json_c/json_value.h>

namespace qv::json {

/// Every power of ten here is a double without rounding, and so is every integer below 2^53. One division of the two is
/// therefore correctly rounded.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Reads any number that the grammar allows. Returns the place behind it, or null with *ppError at the character that
/// should have been a digit.
const char* readNumber(const char* p, const char* pEnd, QvJsonValue_t* pValue, const char** ppError);

/// How many of eight bytes are digits, from the first one on.
inline unsigned leadingDigits(uint64_t bytes)
{
    const uint64_t digits = bytes ^ repeated('0');
    // A digit is below 10 now, so that adding 0x76 leaves its high bit clear. A carry only touches bytes behind the
    // first that is none.
    return unmarkedBytes(((digits + repeated('\x76')) | digits) & kHighs);
}

/// The value of the first `number` bytes, all of them digits; 1 to 8.
inline uint32_t digitsValue(uint64_t bytes, unsigned number)
{
    // The digits move to the end behind leading zeros, then neighbours are joined in three steps.
    uint64_t digits = (bytes ^ repeated('0')) << ((8 - number) * 8);
    digits = digits * 10 + (digits >> 8);
    digits = ((digits & 0x000000FF000000FF) * 0x000F424000000064 +
              ((digits >> 16) & 0x000000FF000000FF) * 0x0000271000000001) >>
             32;
    return static_cast<uint32_t>(digits);
}

/// How many bytes readShortNumber may look at.
constexpr ptrdiff_t kShortReach = 1 + 8 + 1 + 8;

/// Reads a number of up to seven digits before and behind the point, without a loop. Sets holder and type of *pValue
/// and returns the place behind the number; null if it is something longer, or no number.
inline const char* readShortNumber(const char* p, QvJsonValue_t* pValue)
{
    bool isNegative = false;
    if (*p == '-') [[unlikely]] {
        isNegative = true;
        ++p;
    }
    uint64_t bytes = loadEight(p);
    const unsigned wholeDigits = leadingDigits(bytes);
    if (wholeDigits - 1 >= 7 || (*p == '0' && wholeDigits > 1)) {
        return nullptr;
    }
    const uint32_t whole = digitsValue(bytes, wholeDigits);
    p += wholeDigits;
    if (*p == '.') {
        bytes = loadEight(p + 1);
        const unsigned decimals = leadingDigits(bytes);
        p += 1 + decimals;
        if (decimals - 1 >= 7 || (*p | 0x20) == 'e') {
            return nullptr;
        }
        constexpr std::array<uint32_t, 8> kScales = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
        const auto digits = static_cast<int64_t>(uint64_t{whole} * kScales[decimals] + digitsValue(bytes, decimals));
        const double value = static_cast<double>(digits) / kPowersOfTen[decimals];
        pValue->holder._float = isNegative ? -value : value;
        pValue->type = QvJsonValueType_Float;
        return p;
    }
    if ((*p | 0x20) == 'e') {
        return nullptr;
    }
    const auto value = static_cast<ssize_t>(whole);
    pValue->holder.integer = isNegative ? -value : value;
    pValue->type = QvJsonValueType_Integer;
    return p;
}

} // namespace qv::json
