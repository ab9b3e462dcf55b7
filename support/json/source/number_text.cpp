#include "number_text.h"

#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cstddef>
#include <string_view>

namespace qv::json {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

const char* skipDigits(const char* p, const char* pEnd)
{
    while (p != pEnd && isDigit(*p)) {
        ++p;
    }
    return p;
}

/// The parts of a number as the grammar has them. Parts that are absent are empty.
struct Parts {
    bool isNegative = false;
    std::string_view whole;
    std::string_view fraction; // without the point
    std::string_view exponent; // without the letter, with its sign
    bool hasFraction = false;
    bool hasExponent = false;
};

const char* split(const char* p, const char* pEnd, Parts* pParts, const char** ppError)
{
    const auto takeDigits = [&](const char* pFirst, std::string_view* pDigits) {
        const char* pNext = skipDigits(pFirst, pEnd);
        *ppError = pNext;
        *pDigits = std::string_view(pFirst, static_cast<std::size_t>(pNext - pFirst));
        return pNext;
    };
    pParts->isNegative = *p == '-';
    if (pParts->isNegative) {
        ++p;
    }
    if (p != pEnd && *p == '0') {
        pParts->whole = std::string_view(p, 1); // no digit may follow; the parser finds it where a comma should be
        ++p;
    } else {
        p = takeDigits(p, &pParts->whole);
        if (pParts->whole.empty()) {
            return nullptr;
        }
    }
    if (p != pEnd && *p == '.') {
        pParts->hasFraction = true;
        p = takeDigits(p + 1, &pParts->fraction);
        if (pParts->fraction.empty()) {
            return nullptr;
        }
    }
    if (p != pEnd && (*p == 'e' || *p == 'E')) {
        pParts->hasExponent = true;
        const char* pExponent = p + 1;
        const char* pDigit = pExponent;
        if (pDigit != pEnd && (*pDigit == '+' || *pDigit == '-')) {
            ++pDigit;
        }
        std::string_view digits;
        p = takeDigits(pDigit, &digits);
        if (digits.empty()) {
            return nullptr;
        }
        pParts->exponent = std::string_view(pExponent, static_cast<std::size_t>(p - pExponent));
    }
    return p;
}

/// Where the first digit that isn't zero stands: above 0 left of the point, else right of it.
long long magnitude(const Parts& parts)
{
    long long exponent = 0;
    std::string_view text = parts.exponent;
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    const auto result = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (result.ec == std::errc::result_out_of_range) {
        return text.front() == '-' ? -1 : 1;
    }
    // Farther than the digits of any text can reach, and near enough for them to be counted in.
    constexpr long long kFar = 1LL << 62;
    exponent = std::clamp(exponent, -kFar, kFar);
    const std::size_t place = parts.whole.find_first_not_of('0');
    if (place != std::string_view::npos) {
        return exponent + static_cast<long long>(parts.whole.size() - place);
    }
    const std::size_t zeros = parts.fraction.find_first_not_of('0');
    return exponent - static_cast<long long>(zeros == std::string_view::npos ? 0 : zeros);
}

/// A decimal of at most 15 digits, in one division.
bool readShortDecimal(const Parts& parts, double* pValue)
{
    if (parts.hasExponent || parts.whole.size() + parts.fraction.size() > 15) {
        return false;
    }
    uint64_t digits = 0;
    for (const char c : parts.whole) {
        digits = digits * 10 + static_cast<uint64_t>(c - '0');
    }
    for (const char c : parts.fraction) {
        digits = digits * 10 + static_cast<uint64_t>(c - '0');
    }
    *pValue = static_cast<double>(digits) / kPowersOfTen[parts.fraction.size()];
    return true;
}

/// An integer that fits into 64 bits, with or without sign.
bool readInteger(const Parts& parts, ssize_t* pValue)
{
    uint64_t bits = 0;
    const auto result = std::from_chars(parts.whole.data(), parts.whole.data() + parts.whole.size(), bits);
    if (result.ec != std::errc() || (parts.isNegative && bits > uint64_t{1} << 63)) {
        return false;
    }
    *pValue = static_cast<ssize_t>(parts.isNegative ? uint64_t{0} - bits : bits);
    return true;
}

} // namespace

const char* readNumber(const char* p, const char* pEnd, QvJsonValue_t* pValue, const char** ppError)
{
    Parts parts;
    const char* pNext = split(p, pEnd, &parts, ppError);
    if (pNext == nullptr) {
        return nullptr;
    }
    if (!parts.hasFraction && !parts.hasExponent && readInteger(parts, &pValue->holder.integer)) {
        pValue->type = QvJsonValueType_Integer;
        return pNext;
    }
    double value = 0;
    if (!readShortDecimal(parts, &value)) {
        const auto result = std::from_chars(parts.whole.data(), pNext, value);
        if (result.ec == std::errc::result_out_of_range) {
            value = magnitude(parts) > 0 ? DBL_MAX : 0;
        }
    }
    pValue->holder._float = parts.isNegative ? -value : value;
    pValue->type = QvJsonValueType_Float;
    return pNext;
}

} // namespace qv::json
