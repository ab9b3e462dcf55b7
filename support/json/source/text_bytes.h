#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

// Eight bytes of text at a time: the first one in the low bits, whatever the machine.
namespace qv::json {

constexpr uint64_t kOnes = 0x0101010101010101;
constexpr uint64_t kHighs = 0x8080808080808080;

constexpr uint64_t repeated(char byte)
{
    return kOnes * static_cast<unsigned char>(byte);
}

inline uint64_t loadEight(const char* pText)
{
    uint64_t bytes = 0;
    std::memcpy(&bytes, pText, sizeof(bytes));
    if constexpr (std::endian::native == std::endian::big) {
        bytes = __builtin_bswap64(bytes);
    }
    return bytes;
}

inline void storeEight(char* pText, uint64_t bytes)
{
    if constexpr (std::endian::native == std::endian::big) {
        bytes = __builtin_bswap64(bytes);
    }
    std::memcpy(pText, &bytes, sizeof(bytes));
}

/// How many bytes stand before the first one that is marked in its high bit; 8 if none is.
inline unsigned unmarkedBytes(uint64_t marks)
{
    return static_cast<unsigned>(std::countr_zero(marks)) / 8;
}

} // namespace qv::json
