#include "json_document.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iterator>
#include <utility>
#include <vector>

#include <qv_common_c/common_tracer.h>

namespace qv::test {

namespace {

constexpr std::string_view kPieces[] = {
    "{",    "}",    "[",    "]",     ",",       ":",      "\"", "\\", "/",    "//", "/*", "*/", "\n",   " ",
    "0",    "1",    "9",    "-",     "+",       ".",      "e",  "E",  "null", "t",  "\t", "\r", "\x01", "\x80",
    "\xC3", "\xED", "\xF4", "\\u00", "\\ud834", "\"a\":", ", ", "[]", "{}",   ",,", "1e", "00", "0.1",  "\"\\u0000\"",
};

} // namespace

std::string numbered(const char* pName, int number)
{
    std::string text(pName);
    return text.append(std::to_string(number));
}

Tree make(QvJsonValueType_t type)
{
    QvJsonValue_t* pValue = nullptr;
    EXPECT_EQ(QvJsonValue_create(type, &pValue), 0);
    return Tree(pValue);
}

namespace {

Tree readBy(QvJsonReaderHandle_t reader, std::string_view text, int expectedStatus)
{
    const std::unique_ptr<char[]> exact(new char[text.size() + 1]);
    char* pText = exact.get() + 1; // the byte before keeps the block apart for the empty text
    text.copy(pText, text.size());
    QvJsonValue_t* pValue = nullptr;
    EXPECT_EQ(QvJsonReader_parse(reader, pText, pText + text.size(), &pValue), expectedStatus) << text;
    EXPECT_EQ(pValue != nullptr, expectedStatus == 0) << text;
    EXPECT_EQ(QvJsonReader_close(&reader), 0);
    EXPECT_EQ(reader, 0U);
    return Tree(pValue);
}

} // namespace

Tree read(std::string_view text, int expectedStatus)
{
    QvJsonReaderHandle_t reader = 0;
    EXPECT_EQ(QvJsonReader_open(&reader), 0);
    return readBy(reader, text, expectedStatus);
}

Tree readCompact(std::string_view text, int expectedStatus)
{
    QvJsonReaderHandle_t reader = 0;
    EXPECT_EQ(QvJsonReader_open(&reader), 0);
    EXPECT_EQ(QvJsonCompact_setReader(reader), 0);
    return readBy(reader, text, expectedStatus);
}

std::string write(QvJsonValue_t* pValue, QvJsonWriterOpenParam_t* pParam)
{
    QvJsonWriterHandle_t writer = 0;
    char* pText = nullptr;
    EXPECT_EQ(QvJsonWriter_open(pParam, &writer), 0);
    EXPECT_EQ(QvJsonWriter_stringify(writer, pValue, &pText), 0);
    EXPECT_EQ(QvJsonWriter_close(&writer), 0);
    std::string text = pText != nullptr ? pText : "";
    std::free(pText);
    return text;
}

std::string mutate(std::string_view document, std::mt19937& random)
{
    std::string text(document);
    const auto below = [&](size_t limit) { return static_cast<size_t>(random() % limit); };
    for (size_t number = 1 + below(3); number != 0; --number) {
        const size_t place = below(text.size());
        const size_t length = 1 + below(random() % 4 == 0 ? 40 : 3);
        const std::string_view piece = kPieces[below(std::size(kPieces))];
        switch (random() % 4) {
        case 0:
            text.erase(place, length);
            break;
        case 1:
            text.insert(place, piece);
            break;
        case 2:
            text.replace(place, 1, piece);
            break;
        default:
            text.insert(below(text.size()), text.substr(place, length));
            break;
        }
        if (text.empty()) {
            text.assign(1, '0');
        }
    }
    return text;
}

Traces::Traces()
{
    QvCommonTracerOpenParam_t param = {};
    param.level = QvCommonTracerLevel_Debug;
    param.pUserData = &text_;
    param.pWrite = [](void* pUserData, QvCommonTracerLevel_t, const char* pText, size_t length) {
        static_cast<std::string*>(pUserData)->append(pText, length).append("\n");
        return 0;
    };
    EXPECT_EQ(QvCommonTracer_open(&param, &hTracer), 0);
}

Traces::~Traces()
{
    EXPECT_EQ(QvCommonTracer_close(&hTracer), 0);
}

std::string Traces::take()
{
    return std::exchange(text_, {});
}

} // namespace qv::test
