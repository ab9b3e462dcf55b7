#include "fixed_decimal.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>

namespace qv::json {

namespace {

__extension__ typedef unsigned __int128 Wide;

constexpr auto kScales = [] {
    std::array<uint64_t, kMaximumDecimals + 1> scales = {1};
    for (size_t index = 1; index < scales.size(); ++index) {
        scales[index] = scales[index - 1] * 10;
    }
    return scales;
}();

constexpr auto kPairs = [] {
    std::array<char, 200> pairs = {};
    for (size_t index = 0; index < 100; ++index) {
        pairs[index * 2] = static_cast<char>('0' + index / 10);
        pairs[index * 2 + 1] = static_cast<char>('0' + index % 10);
    }
    return pairs;
}();

void writePair(char* p, uint64_t value)
{
    std::memcpy(p, &kPairs[value * 2], 2);
}

// Writes exactly that many digits, with leading zeros.
void writeDigits(char* p, uint64_t value, int number)
{
    while (number >= 2) {
        number -= 2;
        writePair(p + number, value % 100);
        value /= 100;
    }
    if (number == 1) {
        *p = static_cast<char>('0' + value % 10);
    }
}

char* writeNatural(char* p, uint64_t value)
{
    // Most numbers of a document are short.
    if (value < 100) {
        if (value < 10) {
            *p = static_cast<char>('0' + value);
            return p + 1;
        }
        writePair(p, value);
        return p + 2;
    }
    if (value < 10000) {
        const uint64_t high = value / 100;
        if (value < 1000) {
            *p = static_cast<char>('0' + high);
            writePair(p + 1, value % 100);
            return p + 3;
        }
        writePair(p, high);
        writePair(p + 2, value % 100);
        return p + 4;
    }
    int number = 5;
    for (uint64_t rest = value / 100000; rest != 0; rest /= 10) {
        ++number;
    }
    writeDigits(p, value, number);
    return p + number;
}

// |value| * scale as an integer, rounded half to even. The result fits into 63 bits.
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

template <int kDecimals>
char* writeScaled(char* p, uint64_t value)
{
    constexpr uint64_t kScale = kScales[kDecimals];
    p = writeNatural(p, value / kScale);
    *p++ = '.';
    writeDigits(p, value % kScale, kDecimals);
    return p + kDecimals;
}

} // namespace

char* writeFixed(char* p, double value, int decimals)
{
    if (std::bit_cast<uint64_t>(value) >> 63 != 0) {
        *p++ = '-';
        value = -value;
    }
    const uint64_t scale = kScales[static_cast<size_t>(decimals)];
    constexpr double kLimit = 9223372036854775808.0; // 2^63
    if (!(value < kLimit / static_cast<double>(scale))) {
        return std::to_chars(p, p + kFixedRoom - 1, value, std::chars_format::fixed, decimals).ptr;
    }
    const uint64_t digits = scaled(value, scale);
    if (decimals == 6) {
        return writeScaled<6>(p, digits);
    }
    p = writeNatural(p, digits / scale);
    if (decimals > 0) {
        *p++ = '.';
        writeDigits(p, digits % scale, decimals);
        p += decimals;
    }
    return p;
}

char* writeInteger(char* p, long long value)
{
    auto bits = static_cast<uint64_t>(value);
    if (value < 0) {
        *p++ = '-';
        bits = uint64_t{0} - bits;
    }
    return writeNatural(p, bits);
}

} // namespace qv::json
