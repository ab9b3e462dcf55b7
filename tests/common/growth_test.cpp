// Whatever a text holds, reading, searching, writing and releasing it costs in proportion to its size. What is counted
// is steps, not seconds: the libraries are compiled into this program so that every branch they take comes by here, and
// their allocations and copies count by the byte.
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <new>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "common/through.h"

static uint64_t steps = 0;

extern "C" {

// Called by what is compiled with -fsanitize-coverage=trace-pc, once for each stretch of straight code.
void __sanitizer_cov_trace_pc()
{
    ++steps;
}

// The linker leads the libraries' calls here (--wrap).
void* __real_malloc(size_t size);
void* __real_calloc(size_t number, size_t size);
void* __real_realloc(void* pBlock, size_t size);
void* __real_memcpy(void* pTarget, const void* pSource, size_t size);
void* __real_memmove(void* pTarget, const void* pSource, size_t size);
void* __real_memchr(const void* pBlock, int byte, size_t size);
int __real_memcmp(const void* pBlock, const void* pBlock2, size_t size);
size_t __real_strlen(const char* pText);

void* __wrap_malloc(size_t size)
{
    steps += size;
    return __real_malloc(size);
}

void* __wrap_calloc(size_t number, size_t size)
{
    steps += number * size;
    return __real_calloc(number, size);
}

void* __wrap_realloc(void* pBlock, size_t size)
{
    steps += size;
    return __real_realloc(pBlock, size);
}

void* __wrap_memcpy(void* pTarget, const void* pSource, size_t size)
{
    steps += size;
    return __real_memcpy(pTarget, pSource, size);
}

void* __wrap_memmove(void* pTarget, const void* pSource, size_t size)
{
    steps += size;
    return __real_memmove(pTarget, pSource, size);
}

void* __wrap_memchr(const void* pBlock, int byte, size_t size)
{
    void* pFound = __real_memchr(pBlock, byte, size);
    steps +=
        pFound != nullptr ? static_cast<size_t>(static_cast<char*>(pFound) - static_cast<const char*>(pBlock)) : size;
    return pFound;
}

int __wrap_memcmp(const void* pBlock, const void* pBlock2, size_t size)
{
    steps += size;
    return __real_memcmp(pBlock, pBlock2, size);
}

size_t __wrap_strlen(const char* pText)
{
    const size_t length = __real_strlen(pText);
    steps += length;
    return length;
}

} // extern "C"

// Strings and the containers of the C++ library. Not inline: g++ would see free meet what it takes for another's block.
[[gnu::noinline]] void* operator new(size_t size)
{
    void* pBlock = __wrap_malloc(size);
    if (pBlock == nullptr) {
        throw std::bad_alloc();
    }
    return pBlock;
}

[[gnu::noinline]] void operator delete(void* pBlock) noexcept
{
    std::free(pBlock);
}

[[gnu::noinline]] void operator delete(void* pBlock, size_t) noexcept
{
    std::free(pBlock);
}

namespace {

using namespace qv::test;

constexpr size_t kSmall = 16 * 1024;
constexpr size_t kLarge = 16 * kSmall;

// The steps of a piece of work that gets bigger with its text, at both sizes. Were it quadratic, a byte of the large
// text would cost sixteen times as many as one of the small; growing by doubling alone may differ by a part of two.
void expectStraight(const std::string& name, const std::function<std::string(size_t)>& make,
                    const std::function<int(const std::string&)>& work)
{
    const auto stepsPerByte = [&](size_t size) {
        const std::string text = make(size);
        steps = 0;
        const int status = work(text);
        EXPECT_TRUE(status == 0 || status == 7) << name << ": " << status;
        EXPECT_GT(steps, text.size() / 64) << name << ": the libraries aren't counted";
        return static_cast<double>(steps) / static_cast<double>(text.size());
    };
    const double small = stepsPerByte(kSmall);
    const double large = stepsPerByte(kLarge);
    EXPECT_LT(large, 1.8 * small) << name << ": " << small << " steps a byte, then " << large;
}

// A text of a head, as many pieces as fit, and a tail. '#' in a piece becomes its number.
std::function<std::string(size_t)> repeated(std::string head, std::string piece, std::string tail)
{
    return [head = std::move(head), piece = std::move(piece), tail = std::move(tail)](size_t size) {
        std::string text = head;
        for (size_t number = 0; text.size() < size; ++number) {
            const size_t mark = piece.find('#');
            text += piece.substr(0, mark);
            text += mark != std::string::npos ? std::to_string(number) + piece.substr(mark + 1) : "";
        }
        return text + tail;
    };
}

// Keys that somebody has chosen so that the hash of the C++ library is one and the same for all. That hash takes eight
// bytes at a time and can be undone, so for any two pairs of words there is a last word that brings both to one state.
class ChosenKeys {
public:
    ChosenKeys()
    {
        uint64_t state = 0xC70F6907 ^ (kUnits * 2 * sizeof(uint64_t) * kFactor);
        for (std::array<uint64_t, 4>& unit : units_) {
            do {
                unit = {letters(), letters(), letters(), 0};
                const uint64_t difference = enter(state, unit[0]) ^ enter(state, unit[2]);
                unit[3] = unmix(mix(unit[1]) ^ difference);
            } while (!isPlain(unit[3]));
            state = enter(enter(state, unit[0]), unit[1]);
        }
    }

    std::string key(size_t number) const
    {
        std::string key;
        for (const std::array<uint64_t, 4>& unit : units_) {
            key.append(reinterpret_cast<const char*>(&unit[number % 2 * 2]), 2 * sizeof(uint64_t));
            number /= 2;
        }
        return key;
    }

private:
    static constexpr size_t kUnits = 12;
    static constexpr uint64_t kFactor = 0xC6A4A7935BD1E995;

    static uint64_t mix(uint64_t word) { return (word * kFactor ^ (word * kFactor) >> 47) * kFactor; }
    static uint64_t unmix(uint64_t word)
    {
        uint64_t inverse = kFactor;
        for (int step = 0; step < 6; ++step) {
            inverse *= 2 - kFactor * inverse;
        }
        word *= inverse;
        return (word ^ word >> 47) * inverse;
    }
    static uint64_t enter(uint64_t state, uint64_t word) { return (state ^ mix(word)) * kFactor; }

    uint64_t letters()
    {
        std::array<char, 8> bytes = {};
        for (char& byte : bytes) {
            byte = static_cast<char>('a' + random_() % 26);
        }
        return std::bit_cast<uint64_t>(bytes);
    }
    static bool isPlain(uint64_t word)
    {
        const auto bytes = std::bit_cast<std::array<char, 8>>(word);
        return std::all_of(bytes.begin(), bytes.end(),
                           [](char byte) { return byte > ' ' && byte < 0x7F && byte != '"' && byte != '\\'; });
    }

    std::mt19937 random_{3};
    std::array<std::array<uint64_t, 4>, kUnits> units_ = {};
};

std::string textOfChosenKeys(size_t size)
{
    static const ChosenKeys keys;
    const std::hash<std::string> hash;
    EXPECT_EQ(hash(keys.key(0)), hash(keys.key(1000))) << "the keys aren't chosen well";
    std::string text = "{\"\": 0";
    for (size_t number = 0; text.size() < size; ++number) {
        text += ", \"" + keys.key(number) + "\": 1";
    }
    return text + "}";
}

class Growth : public testing::Test {
protected:
    Growth()
    {
        QvCommonTracerOpenParam_t param = {QvCommonTracerLevel_Sum, nullptr, nullptr, nullptr};
        EXPECT_EQ(QvCommonTracer_open(&param, &hTracer), 0);
    }
    ~Growth() override { QvCommonTracer_close(&hTracer); }
};

TEST_F(Growth, JsonTexts)
{
    const std::vector<std::pair<std::string, std::function<std::string(size_t)>>> texts = {
        {"integers", repeated("[1", ", 12", "]")},
        {"floats", repeated("[1", ",-0.1234567890123456789e-7", "]")},
        {"one number", repeated("[1", "2", ".5]")},
        {"words", repeated("[null", ",true,\nfalse", "]")},
        {"texts", repeated("[\"\"", ",\"a text\"", "]")},
        {"one text", repeated("\"", "\\u00e4\\n\\ud834\\udd1e \xC3\xA4", "\"")},
        {"quotes", repeated("[\"\"", ",\"\\\"\"", "]")},
        {"lists", repeated("[[]", ", [[1], [2, 3]]", "]")},
        {"objects", repeated("[{}", ", {\"a\": {\"b\": 1}}", "]")},
        {"nested", repeated("[0", "," + std::string(500, '[') + std::string(500, ']'), "]")},
        {"keys", repeated("{\"\": 0", ", \"key#\": 1", "}")},
        {"chosen keys", textOfChosenKeys},
        {"doubled keys", repeated("{\"\": 0", ", \"key\": 1, \"x#\": 2", "}")},
        {"escaped keys", repeated("{\"\": 0", ", \"\\u006b#\": 1", "}")},
        {"white space", repeated("[1", " \t\r\n  ", "]")},
        {"blank lines", repeated("[1", "\n", "]")},
        {"comments behind a value", repeated("{\"k\":1", "/*a*/", "}")},
        {"comments behind a comma", repeated("{\"k\":1,", "/*a*/", "\"l\": 2}")},
        {"comments behind a last comma", repeated("[1,\n", "//a\n", "2]")},
        {"comments before a value", repeated("[", "//a\n", "1]")},
        {"comments at a colon", repeated("{\"k\"", "/*a*/", ":1}")},
        {"comments in an empty list", repeated("[", "/**/", "]")},
        {"comments at the start", repeated("", "//\n", "1")},
        {"comments at the end", repeated("1", "/*\n*/ /*a*/\n", "")},
        {"comments on each line", repeated("[0", ", // a\n // b\n 1 /* c */ // d\n", "]")},
        {"one comment", repeated("1 /*", "a * /\n", "*/")},
        {"an error behind lines", repeated("[1", ",\n1", "?")},
        {"an error on one line", repeated("[1", ", \"\xC3\xA4\"", "?")},
        {"an error behind comments", repeated("[1", "/*a*/", "?")},
        {"no end", repeated("[1", ",{\"a\":[1]}", "")},
        {"an open comment", repeated("[1 /*", " * /", "")},
    };
    for (const auto& [name, make] : texts) {
        expectStraight(name, make, [](const std::string& text) { return throughJson(text); });
    }
}

TEST_F(Growth, InitializationTexts)
{
    const std::vector<std::pair<std::string, std::function<std::string(size_t)>>> texts = {
        {"members", repeated("[a]\n", "key# = value\n", "")},
        {"sections", repeated("", "[a#]\nk = 1\n", "")},
        {"comments", repeated("", "; note\n", "[a]\n")},
        {"comments above a key", repeated("[a]\n", "# note\n", "k = 1\n")},
        {"comments at the end", repeated("[a]\nk = 1\n", ";\n", "")},
        {"blank lines", repeated("[a]\n", "\r\n\r \n", "")},
        {"one value", repeated("k = ", "a;b#\"", "\n")},
        {"one quoted value", repeated("k = \"", "\\n\\x01 \\\\", "\"\n")},
        {"one open quote", repeated("\"", "\\", "")},
        {"one header", repeated("[\"", "x] ", "\"]")},
        {"an error behind lines", repeated("", "[a]\nk\n", "= 1")},
    };
    for (const auto& [name, make] : texts) {
        expectStraight(name, make, throughInitialization);
    }
}

TEST_F(Growth, TreesAndQueuesThatAreFilled)
{
    using Add = void (*)(QvJsonValue_t*, size_t);
    const std::pair<const char*, Add> trees[] = {
        {"items added", [](QvJsonValue_t* pRoot, size_t) { QvJsonValue_addIntegerToArray(pRoot, 1); }},
        {"items asked for", [](QvJsonValue_t* pRoot, size_t index) { QvJsonValue_item(pRoot, index); }},
        {"members named",
         [](QvJsonValue_t* pRoot, size_t index) {
             QvJsonValue_member(pRoot, std::to_string(index).c_str());
             QvJsonValue_member(pRoot, std::to_string(index / 2).c_str());
         }},
    };
    const auto make = [](size_t size) { return std::string(size, 'x'); };
    for (const auto& [name, add] : trees) {
        expectStraight(name, make, [add = add](const std::string& text) {
            QvJsonValue_t* pRoot = nullptr;
            EXPECT_EQ(QvJsonValue_create(QvJsonValueType_Null, &pRoot), 0);
            for (size_t index = 0; index < text.size() / 8; ++index) {
                add(pRoot, index);
            }
            return QvJsonValue_delete(&pRoot);
        });
    }
    expectStraight("elements turned round", make, [](const std::string& text) {
        QvCommonDQueueHandle_t queue = 0;
        EXPECT_EQ(QvCommonDQueue_open(nullptr, &queue), 0);
        void* pElement = &queue;
        for (size_t index = 0; index < text.size(); ++index) {
            QvCommonDQueue_pushBack(queue, &pElement);
        }
        for (size_t index = 0; index < text.size(); ++index) {
            QvCommonDQueue_popFront(queue, &pElement);
            QvCommonDQueue_pushBack(queue, &pElement);
        }
        return QvCommonDQueue_close(&queue);
    });
}

} // namespace
