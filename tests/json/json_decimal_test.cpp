// The fast ways to write numbers, beside the slow ones over the same inputs.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include "decimal_digits.h"
#include "fixed_decimal.h"

using namespace qv::json;

namespace {

constexpr std::string_view kMargin = "########";

// What a function writes to a place that has room for it.
template <class Write>
std::string_view written(char* pText, const Write& write)
{
    return {pText, static_cast<size_t>(write(pText) - pText)};
}

void expectInteger(long long value)
{
    char text[kFixedRoom];
    char expected[32];
    const char* pEnd = std::to_chars(expected, expected + sizeof(expected), value).ptr;
    ASSERT_EQ(written(text, [&](char* p) { return writeInteger(p, value); }),
              std::string_view(expected, static_cast<size_t>(pEnd - expected)));
}

bool isAsExact(double value)
{
    char text[kFixedRoom];
    char expected[kFixedRoom];
    return written(text, [&](char* p) { return writeFixed(p, value, 6); }) ==
           written(expected, [&](char* p) { return writeFixedExactly(p, value, 6); });
}

} // namespace

TEST(JsonDecimal, IntegersOfEveryLengthAreWhatTheLibraryWrites)
{
    for (long long value = -20000; value < 120000; ++value) {
        expectInteger(value);
    }
    for (uint64_t power = 1; power <= 1000000000000000000; power *= 10) {
        for (const long long near : {-1, 0, 1}) {
            const long long value = static_cast<long long>(power) + near;
            expectInteger(value);
            expectInteger(-value);
        }
    }
    expectInteger(std::numeric_limits<long long>::max());
    expectInteger(std::numeric_limits<long long>::min());
    std::mt19937_64 random(11);
    for (int index = 0; index < 300000; ++index) {
        expectInteger(static_cast<int64_t>(random()) >> (random() % 64));
    }
}

TEST(JsonDecimal, ShortItemsBringTheirSeparator)
{
    for (uint32_t value = 0; value < 10000; ++value) {
        std::string text(kMargin);
        const char* pEnd = writeShortItem(text.data(), value);
        text.resize(static_cast<size_t>(pEnd - text.data()));
        ASSERT_EQ(text, std::to_string(value) + ", ");
    }
}

TEST(JsonDecimal, FloatsAreWhatExactArithmeticWrites)
{
    std::mt19937_64 random(12);
    for (int index = 0; index < 500000; ++index) {
        // All sizes that the fast way takes and some beyond: any bits, what a text holds, floats, and what lies beside
        // a tie.
        const auto whole = static_cast<double>(static_cast<int64_t>(random()) >> (20 + random() % 44));
        const double tie = (whole + 0.5) / 1e6;
        for (const double value :
             {std::ldexp(static_cast<double>(static_cast<int64_t>(random())), -static_cast<int>(random() % 90)),
              whole / 1e6, static_cast<double>(static_cast<float>(whole / 1e6)), tie, std::nextafter(tie, 0.0),
              std::nextafter(tie, 1e300), whole / 128, whole}) {
            ASSERT_TRUE(isAsExact(value)) << std::hexfloat << value;
        }
    }
    for (const double value : {0.0, 5e-324, 4.999999e-7, 5e-7, 9.9999995, 9.9999994, 99.9999994, 99.9999995,
                               999999.9999995, 999999.9999994, 1e6, 1e12, 9e12, 1.7976931348623157e308}) {
        ASSERT_TRUE(isAsExact(value)) << value;
        ASSERT_TRUE(isAsExact(-value)) << value;
        char text[kFixedRoom];
        char expected[kFixedRoom];
        std::snprintf(expected, sizeof(expected), "%.6f", value);
        ASSERT_EQ(written(text, [&](char* p) { return writeFixed(p, value, 6); }), expected);
    }
    char text[kFixedRoom];
    EXPECT_EQ(writeShortFixed(text, std::numeric_limits<double>::infinity()), nullptr);
    EXPECT_EQ(writeShortFixed(text, std::nan("")), nullptr);
}
