#include "string_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "text_bytes.h"

namespace qv::json {

namespace {

/// What stands for the characters behind a backslash.
constexpr std::string_view kEscapes = "\"\\/bfnrt";
constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";

/// Marks each of eight bytes that is a quote, a backslash, a control character or no ASCII. Marks behind the first may
/// be wrong.
uint64_t markSpecial(uint64_t bytes)
{
    const uint64_t quotes = bytes ^ repeated('"');
    const uint64_t backslashes = bytes ^ repeated('\\');
    return (((quotes - kOnes) & ~quotes) | ((backslashes - kOnes) & ~backslashes) | (bytes - repeated(' ')) | bytes) &
           kHighs;
}

bool isSpecial(char c)
{
    return c == '"' || c == '\\' || static_cast<unsigned char>(c) < ' ' || static_cast<unsigned char>(c) >= 0x80;
}

const char* skipPlain(const char* p, const char* pEnd)
{
    while (pEnd - p >= 8) {
        const unsigned plain = unmarkedBytes(markSpecial(loadEight(p)));
        p += plain;
        if (plain < 8) {
            return p;
        }
    }
    while (p != pEnd && !isSpecial(*p)) {
        ++p;
    }
    return p;
}

/// Four hex digits at p; -1 if there are none.
int32_t readHex(const char* p, const char* pEnd)
{
    if (pEnd - p < 4) {
        return -1;
    }
    uint32_t value = 0;
    const auto result = std::from_chars(p, p + 4, value, 16);
    return result.ptr == p + 4 ? static_cast<int32_t>(value) : -1;
}

bool isHighSurrogate(int32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(int32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Checks the escape whose backslash stands at p. Returns the place behind it, or null with the fault in *pScan.
const char* checkEscape(const char* p, const char* pEnd, StringScan* pScan)
{
    const auto fail = [&](const char* pError, const char* pExpected) {
        pScan->pError = std::min(pError, pEnd);
        pScan->pExpected = pExpected;
        return nullptr;
    };
    if (p + 1 == pEnd || (p[1] != 'u' && kEscapes.find(p[1]) == std::string_view::npos)) {
        return fail(p + 1, "one of \"\\/bfnrtu behind the backslash");
    }
    if (p[1] != 'u') {
        return p + 2;
    }
    const int32_t unit = readHex(p + 2, pEnd);
    if (unit < 0) {
        return fail(p + 2, "four hex digits");
    }
    if (isLowSurrogate(unit)) {
        return fail(p, "the high half of a surrogate pair first");
    }
    if (!isHighSurrogate(unit)) {
        return p + 6;
    }
    if (pEnd - p < 12 || p[6] != '\\' || p[7] != 'u' || !isLowSurrogate(readHex(p + 8, pEnd))) {
        return fail(p + 6, "the low half of a surrogate pair");
    }
    return p + 12;
}

char* writeUtf8(uint32_t point, char* p)
{
    const auto tail = [&](unsigned shift) { *p++ = static_cast<char>(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        *p++ = static_cast<char>(point);
    } else if (point < 0x800) {
        *p++ = static_cast<char>(0xC0 | (point >> 6));
        tail(0);
    } else if (point < 0x10000) {
        *p++ = static_cast<char>(0xE0 | (point >> 12));
        tail(6);
        tail(0);
    } else {
        *p++ = static_cast<char>(0xF0 | (point >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
    return p;
}

} // namespace

std::size_t sequenceLength(const char* p, const char* pEnd)
{
    const auto byteAt = [&](ptrdiff_t index) -> unsigned {
        return index < pEnd - p ? static_cast<unsigned char>(p[index]) : 0;
    };
    const auto isTail = [&](ptrdiff_t index) { return (byteAt(index) & 0xC0) == 0x80; };
    const unsigned first = byteAt(0);
    const unsigned second = byteAt(1);
    if (first < 0x80) {
        return p != pEnd ? 1 : 0;
    }
    if (first < 0xE0) {
        return first >= 0xC2 && isTail(1) ? 2 : 0;
    }
    if (first < 0xF0) {
        // Neither what fits into two bytes nor surrogates.
        const bool isRange = (first != 0xE0 || second >= 0xA0) && (first != 0xED || second < 0xA0);
        return isRange && isTail(1) && isTail(2) ? 3 : 0;
    }
    const bool isRange = first <= 0xF4 && (first != 0xF0 || second >= 0x90) && (first != 0xF4 || second < 0x90);
    return isRange && isTail(1) && isTail(2) && isTail(3) ? 4 : 0;
}

StringScan scanString(const char* p, const char* pEnd)
{
    StringScan scan;
    for (;;) {
        p = skipPlain(p, pEnd);
        if (p == pEnd) {
            scan.pError = p;
            scan.pExpected = "'\"' at the end of a text";
            return scan;
        }
        if (*p == '"') {
            scan.pQuote = p;
            return scan;
        }
        if (*p == '\\') {
            scan.hasEscape = true;
            p = checkEscape(p, pEnd, &scan);
            if (p == nullptr) {
                return scan;
            }
        } else if (static_cast<unsigned char>(*p) < ' ') {
            scan.pError = p;
            scan.pExpected = "'\"' or an escape instead of a control character";
            return scan;
        } else {
            const std::size_t length = sequenceLength(p, pEnd);
            if (length == 0) {
                scan.pError = p;
                scan.pExpected = "valid UTF-8";
                return scan;
            }
            p += length;
        }
    }
}

std::size_t resolveEscapes(std::string_view text, char* pTarget)
{
    char* pOut = pTarget;
    const char* p = text.data();
    const char* pEnd = p + text.size();
    while (p != pEnd) {
        const char* pEscape = std::find(p, pEnd, '\\');
        pOut = std::copy(p, pEscape, pOut);
        if (pEscape == pEnd) {
            break;
        }
        p = pEscape;
        if (p[1] != 'u') {
            *pOut++ = kMeanings[kEscapes.find(p[1])];
            p += 2;
            continue;
        }
        auto point = static_cast<uint32_t>(readHex(p + 2, pEnd));
        p += 6;
        if (isHighSurrogate(static_cast<int32_t>(point))) {
            const auto low = static_cast<uint32_t>(readHex(p + 2, pEnd));
            point = 0x10000 + ((point - 0xD800) << 10) + (low - 0xDC00);
            p += 6;
        }
        pOut = writeUtf8(point, pOut);
    }
    return static_cast<std::size_t>(pOut - pTarget);
}

} // namespace qv::json
