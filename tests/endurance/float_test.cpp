// Floats through text and back, as records do it. The referee for the text is arithmetic that is exact, and fast enough
// for all floats there are; the C library is the referee for that one, and for the way back.
#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <qv_database_c/database_access.h>

#include "database/test_support.h"
#include "endurance/setting.h"

using namespace qv::test;

namespace {

constexpr std::size_t kRoom = 64; // of a float's text

/// Writes a float correctly rounded; what lies in the middle goes to the even digit. A million times a float below 2^23
/// has at most 38 bits, so that a double holds it and rounds it once; from there on floats are whole.
char* writeExpected(char* pText, float value)
{
    constexpr std::uint64_t kMillion = 1000000;
    const double size = std::fabs(static_cast<double>(value));
    if (std::signbit(value)) {
        *pText++ = '-';
    }
    if (size >= 0x1p23) {
        return std::to_chars(pText, pText + kRoom - 1, size, std::chars_format::fixed, 6).ptr;
    }
    const auto millionths = static_cast<std::uint64_t>(std::nearbyint(size * kMillion));
    pText = std::to_chars(pText, pText + kRoom - 1, millionths / kMillion).ptr;
    *pText++ = '.';
    for (std::uint64_t unit = kMillion / 10; unit > 0; unit /= 10) {
        *pText++ = static_cast<char>('0' + millionths / unit % 10);
    }
    return pText;
}

/// Writes and reads many floats at once.
class Passage {
public:
    Passage()
    {
        QvJsonWriterOpenParam_t param{};
        param.decimals = 6;
        isWell_ = QvJsonReader_open(&reader_) == 0 && QvJsonWriter_open(&param, &writer_) == 0;
    }
    Passage(const Passage&) = delete;
    Passage& operator=(const Passage&) = delete;
    ~Passage()
    {
        QvJsonReader_close(&reader_);
        QvJsonWriter_close(&writer_);
    }

    /// The first of these that doesn't come through as it should; null for none.
    const float* pass(std::vector<float>& values, bool withCLibrary)
    {
        QvJsonValue_t* pTree = nullptr;
        char* pText = nullptr;
        std::vector<float> found(values.size());
        isWell_ = isWell_ && QvJsonValue_create(QvJsonValueType_Object, &pTree) == 0 &&
                  QvDatabaseAccess_floats_(pTree, values.data(), values.size(), "v") == 0 &&
                  QvJsonWriter_stringify(writer_, pTree, &pText) == 0 && QvJsonValue_delete(&pTree) == 0 &&
                  QvJsonReader_parse(reader_, pText, pText + std::strlen(pText), &pTree) == 0 &&
                  QvDatabaseAccess_floats(pTree, found.data(), found.size(), "v") == 0 &&
                  QvJsonValue_delete(&pTree) == 0;
        if (!isWell_) {
            return values.data();
        }
        const char* pNext = std::strchr(pText, '[') + 1;
        std::size_t at = 0;
        while (at < values.size() && isRight(values[at], found[at], pNext, withCLibrary)) {
            ++at;
            pNext += at < values.size() ? 2 : 0; // a comma and a blank
        }
        const bool isAll = at == values.size() && *pNext == ']';
        std::free(pText);
        return isAll ? nullptr : &values[std::min(at, values.size() - 1)];
    }

private:
    static bool isRight(float value, float found, const char*& pText, bool withCLibrary)
    {
        std::array<char, kRoom> expected{};
        const auto length = static_cast<std::size_t>(writeExpected(expected.data(), value) - expected.data());
        if (std::strncmp(pText, expected.data(), length) != 0) {
            return false;
        }
        pText += length;
        if (withCLibrary) {
            std::array<char, kRoom> text{};
            std::snprintf(text.data(), text.size(), "%.6f", static_cast<double>(value));
            if (text != expected) {
                return false;
            }
        }
        // Whole numbers are all there; others as near as a float comes to what the text says.
        const float nearest = std::fabs(value) >= 0x1p23F ? value : std::strtof(expected.data(), nullptr);
        return std::bit_cast<std::uint32_t>(found) == std::bit_cast<std::uint32_t>(nearest);
    }

    QvJsonReaderHandle_t reader_ = 0;
    QvJsonWriterHandle_t writer_ = 0;
    bool isWell_ = true;
};

TEST(Floats, OfEachExponentAndByChance)
{
    std::mt19937 random(1);
    std::vector<float> values;
    for (std::uint32_t exponent = 0; exponent < 255; ++exponent) {
        for (std::uint32_t mantissa : {0x0U, 0x1U, 0x2U, 0x3U, 0x3FFFFFU, 0x400000U, 0x400001U, 0x7FFFFEU, 0x7FFFFFU}) {
            values.push_back(std::bit_cast<float>(exponent << 23U | mantissa));
        }
        for (int i = 0; i < 200; ++i) {
            values.push_back(std::bit_cast<float>(exponent << 23U | static_cast<std::uint32_t>(random()) >> 9U));
        }
    }
    for (int i = 0; i < 2000; ++i) { // what a hand writes, and what lies in the middle between two texts
        values.push_back(static_cast<float>(i) / 1000);
        values.push_back(static_cast<float>(2 * i + 1) / 128);
    }
    for (int i = 0; i < 1000000; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        values.push_back(std::isfinite(value) ? value : 0);
    }
    const std::size_t number = values.size();
    for (std::size_t i = 0; i < number; ++i) {
        values.push_back(-values[i]);
    }
    Passage passage;
    const float* pWrong = passage.pass(values, true);
    EXPECT_EQ(pWrong, nullptr) << *pWrong << " does not come through";
}

TEST(Floats, AllOfThem)
{
    if (!isNight()) {
        GTEST_SKIP() << "for the night";
    }
    constexpr std::uint32_t kAtOnce = 1U << 16U;
    std::atomic<std::uint32_t> nextBatch = 0;
    std::atomic<std::uint32_t> wrong = 0;
    std::atomic<int> wrongNumber = 0;
    const auto work = [&] {
        Passage passage;
        std::vector<float> values;
        for (std::uint32_t batch = 0; (batch = nextBatch++) < 0xFFFFFFFFU / kAtOnce + 1;) {
            values.clear();
            for (std::uint32_t i = 0; i < kAtOnce; ++i) {
                const auto value = std::bit_cast<float>(batch * kAtOnce + i);
                if (std::isfinite(value)) {
                    values.push_back(value);
                }
            }
            const float* pWrong = values.empty() ? nullptr : passage.pass(values, false);
            if (pWrong != nullptr) {
                wrong = std::bit_cast<std::uint32_t>(*pWrong);
                ++wrongNumber;
            }
        }
    };
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
        threads.emplace_back(work);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrongNumber, 0) << std::bit_cast<float>(wrong.load()) << " does not come through";
}

} // namespace
