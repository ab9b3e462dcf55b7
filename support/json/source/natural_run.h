#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "number_text.h"
#include "text_bytes.h"
#include <qv_json_c/json_value.h>

// Runs of short numbers without sign and point, a comma and a blank apart, which most of a document is. Number after
// number each one's end would have to be known before the next one's start is. Here the ends in a piece of text are
// found all at once.
namespace qv::json {

/// A bit for each of 64 bytes, the lowest for the first, that is set where the byte is no digit.
inline uint64_t findOthersPortably(const char* p)
{
    uint64_t others = 0;
    for (unsigned step = 0; step < 8; ++step) {
        const uint64_t digits = loadEight(p + step * 8) ^ repeated('0');
        const uint64_t marks = (((digits & ~kHighs) + repeated('\x76')) | digits) & kHighs;
        // The product gathers the marks in its highest byte.
        others |= ((marks >> 7) * 0x0102040810204080 >> 56) << step * 8;
    }
    return others;
}

inline uint64_t findOthers(const char* p)
{
#if defined(__SSE2__)
    // As signed bytes, digits are the lowest ten once '0' is moved there.
    const __m128i shift = _mm_set1_epi8(static_cast<char>('0' - 128));
    const __m128i last = _mm_set1_epi8(9 - 128);
    uint64_t others = 0;
    for (unsigned step = 0; step < 4; ++step) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + step * 16));
        const auto marks = static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpgt_epi8(_mm_sub_epi8(bytes, shift), last)));
        others |= uint64_t{marks} << step * 16;
    }
    return others;
#else
    return findOthersPortably(p);
#endif
}

/// What may be looked at from the start of a number on.
constexpr ptrdiff_t kRunReach = 64 + 8;

/// No more than 22 numbers begin in 64 bytes.
constexpr ptrdiff_t kRunRoom = 22 * sizeof(QvJsonValue_t);

struct NaturalRun {
    const char* pNext;    // where the next number, or something else, stands
    QvJsonValue_t* pItem; // behind the items that were filled
};

/// Reads numbers of up to eight digits as long as ", " stands behind them and there is text and room for more. Stops
/// before the first one that is different, which may be the one at p. There is room for items up to pLimit, which get
/// the mark.
inline NaturalRun readNaturals(const char* p, const char* pEnd, QvJsonValue_t* pItem, const char* pLimit, uint32_t mark)
{
    while (pEnd - p >= kRunReach && pLimit - reinterpret_cast<const char*>(pItem) >= kRunRoom) {
        unsigned begin = 0;
        for (uint64_t others = findOthers(p); others != 0; others &= others - 1) {
            const auto end = static_cast<unsigned>(std::countr_zero(others));
            const char* pNumber = p + begin;
            const unsigned digits = end - begin;
            if (digits - 1 >= 8 || std::memcmp(p + end, ", ", 2) != 0 || (*pNumber == '0' && digits > 1)) {
                return {pNumber, pItem};
            }
            pItem->holder.integer = digitsValue(loadEight(pNumber), digits);
            pItem->pComment = nullptr;
            pItem->pComment2 = nullptr;
            pItem->type = QvJsonValueType_Integer;
            pItem->reserved = mark;
            ++pItem;
            begin = end + 2;
            others &= others - 1; // the comma; then the blank goes
        }
        if (begin == 0) {
            break;
        }
        p += begin;
    }
    return {p, pItem};
}

} // namespace qv::json
