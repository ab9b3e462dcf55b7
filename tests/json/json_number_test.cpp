// The fast ways to read and write numbers, beside the slow ones over the same inputs.
#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "decimal_digits.h"
#include "fixed_decimal.h"
#include "json_document.h"
#include "natural_run.h"

using namespace qv::json;
using namespace qv::test;

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

// A number as texts have it, mostly a short natural.
std::string someNumber(std::mt19937_64& random)
{
    const uint64_t value = random() >> (random() % 4 == 0 ? random() % 64 : 52 + random() % 12);
    std::string text = random() % 16 == 0 ? "-" : "";
    text += std::to_string(value);
    if (random() % 24 == 0) {
        text += "." + std::to_string(random() % 10000000000 >> random() % 30);
    }
    if (random() % 60 == 0) {
        text += "e-1";
    }
    return text;
}

} // namespace

TEST(JsonNumber, DigitsAreFoundAlikeInEveryWay)
{
    std::mt19937_64 random(13);
    char text[64];
    for (int round = 0; round < 20000; ++round) {
        for (char& byte : text) {
            byte = static_cast<char>(random() % 3 == 0 ? '/' + random() % 12 : random());
        }
        uint64_t expected = 0;
        for (size_t index = 0; index < 64; ++index) {
            expected |= uint64_t{text[index] < '0' || text[index] > '9'} << index;
        }
        ASSERT_EQ(findOthers(text), expected);
        ASSERT_EQ(findOthersPortably(text), expected);
    }
}

TEST(JsonNumber, NumbersInRunsAreReadAsAlone)
{
    std::mt19937_64 random(14);
    for (int round = 0; round < 400; ++round) {
        std::vector<std::string> numbers(1 + random() % 90);
        std::string text = "[";
        std::string other;
        for (std::string& number : numbers) {
            number = someNumber(random);
            text += text.size() == 1 ? "" : random() % 30 != 0 ? ", " : random() % 2 == 0 ? "," : " ,\n ";
            // What is no number, or none that is allowed, in the place of one.
            constexpr const char* kOthers[] = {"", "01", "1 2", "1 ,,", ", ", "1x", "00", "-", "1.", "x", "1/"};
            if (other.empty() && random() % 40 == 0) {
                other.append(text).append(kOthers[random() % std::size(kOthers)]);
            }
            text += number;
        }
        const Tree list = read(text + (round % 2 == 0 ? "]" : "]" + std::string(100, ' ')));
        ASSERT_EQ(QvJsonValue_size(list.get()), numbers.size());
        for (size_t index = 0; index < numbers.size(); ++index) {
            const Tree alone = read(numbers[index]);
            const QvJsonValue_t& item = list->holder.pArray->pValues[index];
            ASSERT_EQ(item.type, alone->type) << numbers[index];
            ASSERT_EQ(item.holder.integer, alone->holder.integer) << numbers[index];
        }
        if (!other.empty()) {
            const Traces traces;
            read(other + ", 1, 2, 3]" + std::string(100, ' '), 7);
        }
    }
}

// Runs are read in wide steps: over every place where a text, or the memory for its tree, can end.
TEST(JsonNumber, RunsEndWhereTextAndMemoryEnd)
{
    for (size_t number = 15; number < 60; ++number) {
        for (size_t digits = 1; digits < 9; ++digits) {
            std::string text = "[" + std::string(digits, '7');
            for (size_t index = 1; index < number; ++index) {
                text += ", 7";
            }
            ASSERT_EQ(QvJsonValue_size(read(text + "]").get()), number);
        }
    }
    // The blanks make the reader expect a smaller tree.
    std::string start(66000, ' ');
    start += "[";
    const std::string list = listOf(0, 3000);
    for (int round = 0; round < 30; ++round) {
        start += "[7], ";
        const Tree root = read(start + list + "]");
        const QvJsonValueArray_t& items =
            *QvJsonValue_item(root.get(), QvJsonValue_size(root.get()) - 1)->holder.pArray;
        ASSERT_EQ(items.number, 3000U);
        for (size_t index = 0; index < items.number; ++index) {
            ASSERT_EQ(items.pValues[index].holder.integer, static_cast<ssize_t>(index));
        }
    }
}

TEST(JsonNumber, IntegersOfEveryLengthAreWhatTheLibraryWrites)
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

TEST(JsonNumber, ShortItemsBringTheirSeparator)
{
    for (uint32_t value = 0; value < 100000; ++value) {
        for (const auto& write : {value < 10000 ? writeShortItem : writeFiveDigitItem, writeFiveDigitItem}) {
            std::string text(kMargin);
            const char* pEnd = write(text.data(), value);
            text.resize(static_cast<size_t>(pEnd - text.data()));
            ASSERT_EQ(text, std::to_string(value) + ", ");
        }
    }
}
