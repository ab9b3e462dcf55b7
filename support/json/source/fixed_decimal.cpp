#include "fixed_decimal.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "decimal_digits.h"

namespace qv::json {

namespace {

__extension__ typedef unsigned __int128 Wide;

constexpr auto kScales = [] {
    std::array<uint64_t, kMaximumDecimals + 1> scales = {1};
    for (std::size_t index = 1; index < scales.size(); ++index) {
        scales[index] = scales[index - 1] * 10;
    }
    return scales;
}();

/// Writes exactly that many digits, with leading zeros. Up to eight bytes behind them are written, too.
void writeDigits(char* p, uint64_t value, int number)
{
    constexpr uint64_t kEight = 100000000;
    if (number > 8) {
        writeDigits(p, value / kEight, number - 8);
        p += number - 8;
        value %= kEight;
        number = 8;
    }
    storeDigits(p, eightDigits(static_cast<uint32_t>(value)) >> (8 - number) * 8);
}

/// |value| * scale as an integer, rounded half to even. The result fits into 63 bits.
uint64_t scaled(double value, uint64_t scale)
{
    constexpr uint64_t kHidden = uint64_t{1} << 52;
    const auto bits = std::bit_cast<uint64_t>(value);
    const auto biased = static_cast<int>(bits >> 52 & 0x7FF);
    const uint64_t mantissa = (bits & (kHidden - 1)) | (biased != 0 ? kHidden : 0);
    const int shift = 1075 - (biased != 0 ? biased : 1);
    // 53 and 57 bits at most.
    const Wide product = Wide{mantissa} * scale;
    if (shift <= 0) {
        return static_cast<uint64_t>(product << -shift);
    }
    if (shift > 120) {
        return 0;
    }
    const auto quotient = static_cast<uint64_t>(product >> shift);
    const Wide rest = product & ((Wide{1} << shift) - 1);
    const Wide half = Wide{1} << (shift - 1);
    return quotient + (rest > half || (rest == half && quotient % 2 != 0) ? 1 : 0);
}

} // namespace

char* writeLongNatural(char* p, uint64_t value)
{
    constexpr uint64_t kEight = 100000000;
    if (value < kEight) {
        return writeNatural(p, value);
    }
    p = writeLongNatural(p, value / kEight);
    storeDigits(p, eightDigits(static_cast<uint32_t>(value % kEight)));
    return p + 8;
}

char* writeFixed(char* p, double value, int decimals)
{
    char* pNext = decimals == 6 ? writeShortFixed(p, value) : nullptr;
    return pNext != nullptr ? pNext : writeFixedExactly(p, value, decimals);
}

char* writeFixedExactly(char* p, double value, int decimals)
{
    if (std::bit_cast<uint64_t>(value) >> 63 != 0) {
        *p++ = '-';
        value = -value;
    }
    const uint64_t scale = kScales[static_cast<std::size_t>(decimals)];
    constexpr double kLimit = 9223372036854775808.0; // 2^63
    if (!(value < kLimit / static_cast<double>(scale))) {
        return std::to_chars(p, p + kFixedRoom - 1, value, std::chars_format::fixed, decimals).ptr;
    }
    const uint64_t digits = scaled(value, scale);
    p = writeNatural(p, digits / scale);
    if (decimals > 0) {
        *p++ = '.';
        writeDigits(p, digits % scale, decimals);
        p += decimals;
    }
    return p;
}

} // namespace qv::json
