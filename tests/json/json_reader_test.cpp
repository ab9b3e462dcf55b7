#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "json_document.h"

using namespace qv::test;

namespace {

std::string nested(size_t depth)
{
    return std::string(depth, '[') + std::string(depth, ']');
}

} // namespace

TEST(JsonReader, TakesWhatTheGrammarTakesAndNothingElse)
{
    const std::string accepted[] = {
        "0",
        "-0",
        " \t\r\n1 ",
        "[]",
        "{}",
        "\xEF\xBB\xBF[1]",
        "[1,2 ,3\n]",
        "// note\n1",
        "1 // note",
        nested(512),
        "[0.5,1E+2,1e-2,-1.0e2]",
        R"("\"\\\/\b\f\n\r\t\u00e4\uD834\uDD1E")",
        "\"\x7F\xC3\xA4\xE0\xA0\x80\xE2\x82\xAC\xED\x9F\xBF\xF0\x9F\x8E\xA5\"",
        "[true,false,null]",
        R"({"":{"a":[]}})",
        "[/**/1/***/,/* * / */2]",
        "{\"a\": [1, -2.5e3, \"t\\u00e4\xC3\xA4\", true, null], /* note */ \"b\": {\"c\": {}}}",
    };
    constexpr std::string_view kRefused[] = {
        "  ", "\xEF\xBB\xBF", "[1,]", "[,1]", "[1 2]", "{\"a\":1,}", "{a:1}", "{1:2}", "{\"a\"", "{\"a\":", "]", "1 2",
        "{}}", "[-01]", "+1", "-", ".5", "1.", "1e", "1e+", "0x10", "NaN", "Infinity", "tru", "trueish", "nul", "'a'",
        "\"\t\"", "\"\\x41\"", "\"\\u12", "\"\\", "/", "1 # note", "\v1",
        // No UTF-8.
        "\"\xC3\"", "\"\xC0\x80\"", "\"\xE0\x9F\xBF\"", "\"\xED\xA0\x80\"", "\"\xF4\x90\x80\x80\"", "\"\x80\"",
        "\"\\uD834\"", "\"\\uD834\\u0041\"", std::string_view("1\0", 2), std::string_view("1 // a\0b", 8)};
    const Traces traces;
    for (const std::string& text : accepted) {
        EXPECT_NE(read(text), nullptr);
        // No part of an object or an array is a whole one.
        const bool isContainer = text.back() == ']' || text.back() == '}';
        for (size_t size = 0; isContainer && size < text.size(); ++size) {
            read(std::string_view(text).substr(0, size), 7);
        }
    }
    for (const std::string_view text : kRefused) {
        read(text, 7);
    }
    // Every byte of a sequence but the first is one that goes on.
    for (const std::string sequence : {"\xC3\xA4", "\xE2\x82\xAC", "\xF1\x9F\x8E\xA5"}) {
        for (size_t place = 1; place < sequence.size(); ++place) {
            for (const char byte : {'A', '\xC0'}) {
                std::string text = '"' + sequence + '"';
                text[1 + place] = byte;
                read(text, 7);
            }
        }
    }
}

TEST(JsonReader, NumbersKeepWhatTheyAre)
{
    struct Case {
        const char* pText;
        QvJsonValueType_t type;
        ssize_t integer;
        double value;
    };
    constexpr auto kInteger = QvJsonValueType_Integer;
    constexpr auto kFloat = QvJsonValueType_Float;
    const Case cases[] = {
        {"1234567", kInteger, 1234567, 0},
        {"12345678", kInteger, 12345678, 0},
        {"-123456789012345678", kInteger, -123456789012345678, 0},
        {"9223372036854775807", kInteger, INT64_MAX, 0},
        {"-9223372036854775808", kInteger, INT64_MIN, 0},
        {"18446744073709551615", kInteger, -1, 0},
        {"9223372036854775808", kInteger, INT64_MIN, 0},
        {"18446744073709551616", kFloat, 0, 18446744073709551616.0},
        {"-9223372036854775809", kFloat, 0, -9223372036854775808.0},
        {"1.0", kFloat, 0, 1},
        {"2e2", kFloat, 0, 200},
        {"0.1234567", kFloat, 0, 0.1234567},
        {"0.12345678", kFloat, 0, 0.12345678},
        {"9007199.2547409", kFloat, 0, 9007199.2547409},
        {"9007199254740993.0", kFloat, 0, 9007199254740992.0}, // a tie, to even
        {"0.30000000000000004", kFloat, 0, 0.30000000000000004},
        {"1e999", kFloat, 0, DBL_MAX},
        {"-1e99999999999999999999", kFloat, 0, -DBL_MAX},
        {"0.01e+999", kFloat, 0, DBL_MAX},
        {"0.000e999", kFloat, 0, 0},
        {"1e9223372036854775807", kFloat, 0, DBL_MAX},
        {"1e-999", kFloat, 0, 0},
        {"0.01e-9223372036854775808", kFloat, 0, 0},
        {"1e-99999999999999999999", kFloat, 0, 0},
        {"4.9e-324", kFloat, 0, 4.9e-324},
    };
    for (const Case& expected : cases) {
        // Alone at the end of the text, and with room behind it for the reader's wider steps.
        for (const std::string& text : {std::string("[") + expected.pText + "]",
                                        std::string("[") + expected.pText + ", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10]"}) {
            const Tree root = read(text);
            const QvJsonValue_t* pItem = QvJsonValue_item(root.get(), 0);
            ASSERT_EQ(pItem->type, expected.type) << text;
            if (expected.type == kInteger) {
                EXPECT_EQ(pItem->holder.integer, expected.integer) << text;
            } else {
                EXPECT_EQ(pItem->holder._float, expected.value) << text;
            }
        }
    }
    EXPECT_TRUE(std::signbit(QvJsonValue_asFloat(read("-0.0").get())));
}

TEST(JsonReader, TextsAreResolved)
{
    const Tree root = read(R"(["\"\\\/\b\f\n\r\t", "\u00e4\u20AC\uD834\uDD1E", "cut\u0000here", "",
        "\u007F\u0080\u07FF\u0800\uFFFF\uD800\uDC00\uDBFF\uDFFF"])");
    EXPECT_STREQ(QvJsonValue_itemAsString(root.get(), 0), "\"\\/\b\f\n\r\t");
    EXPECT_STREQ(QvJsonValue_itemAsString(root.get(), 1), "\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E");
    EXPECT_STREQ(QvJsonValue_itemAsString(root.get(), 2), "cut");
    EXPECT_STREQ(QvJsonValue_itemAsString(root.get(), 3), "");
    EXPECT_STREQ(QvJsonValue_itemAsString(root.get(), 4),
                 "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(JsonReader, ADoubledKeyTakesTheLastValueInTheFirstPlace)
{
    const Tree root =
        read("{\"a\": [1], \"b\": 2 /* gone */, \"a\": 3, \"c\": 4, \"\\u0061\": {\"x\": 5} /* a */, \"b\": 6}");
    EXPECT_EQ(write(root.get()), "{\n  \"a\": {\n    \"x\": 5\n  }, // a\n  \"b\": 6,\n  \"c\": 4\n}\n");
}

TEST(JsonReader, SyntaxErrorsTellWhatWasExpectedAndWhere)
{
    struct Case {
        const char* pText;
        const char* pExpected;
    };
    const Case cases[] = {
        {"", "a value at line 1, column 1"},
        {"{\n  \"a\": 1,\n  \"list\": [1, 2}", "',' or ']' at line 3, column 16"},
        {"{\"a\": 1 \"b\": 2}", "',' or '}' at line 1, column 9"},
        {"{\"a\": 1,\n}", "a key at line 2, column 1"},
        {"{]", "a key or '}' at line 1, column 2"},
        {"{\"a\" 1}", "':' at line 1, column 6"},
        {"[1,\n 2,\n x]", "a value at line 3, column 2"},
        {"[\"\xC3\xA4\xE2\x82\xAC\", ?]", "a value at line 1, column 8"},
        {"[-x]", "a digit at line 1, column 3"},
        {"[1.5, 2.]", "a digit at line 1, column 9"},
        {"[01]", "',' or ']' at line 1, column 3"},
        {"\"abc", "'\"' at the end of a text at line 1, column 5"},
        {"\"a\nb\"", "'\"' or an escape instead of a control character at line 1, column 3"},
        {"\"\\q\"", "one of \"\\/bfnrtu behind the backslash at line 1, column 3"},
        {"\"\\u12x4\"", "four hex digits at line 1, column 4"},
        {"\"\\ud834x\"", "the low half of a surrogate pair at line 1, column 8"},
        {"\"\\ud834\\udd1e", "'\"' at the end of a text at line 1, column 14"},
        {"\"\\udd1e\"", "the high half of a surrogate pair first at line 1, column 2"},
        {"\"a\xFF\"", "valid UTF-8 at line 1, column 3"},
        {"{} x", "the end of the text at line 1, column 4"},
        {"[1, /* two", "'*/' at the end of a comment at line 1, column 11"},
        {"[1, /x", "'/' or '*' of a comment at line 1, column 6"},
    };
    Traces traces;
    for (const Case& expected : cases) {
        read(expected.pText, 7);
        const std::string trace = traces.take();
        const std::string ending = std::string("syntax error(7): expected ") + expected.pExpected + "\n";
        EXPECT_TRUE(trace.starts_with("error: ") && trace.ends_with(ending)) << expected.pText << "\n" << trace;
    }
    read(std::string("[1, /*\n\0*/ 2]", 14), 7);
    EXPECT_TRUE(traces.take().ends_with("expected a comment without zero bytes at line 2, column 1\n"));
    read(nested(513), 7);
    EXPECT_TRUE(traces.take().ends_with("expected at most 512 nested objects and arrays at line 1, column 513\n"));
}

TEST(JsonReader, CommentsGoToTheValuesTheyStandBy)
{
    const Tree root = read("// for the root\n"
                           "/* and\n * more\n */\n"
                           "{ // for a, as nothing stands before it\n"
                           "  \"a\": 1, // behind a\n"
                           "  // above b\n"
                           "  /**/ \"b\" /* key */ : /* colon */ [1 /* one */, 2, /* three */ 3, // after\n"
                           "    4\n    // last\n  ], \n"
                           "  \"c\": {/* inside */}, // behind\n"
                           "  \"d\": {\"e\": 5 /* e */} /* d */\n"
                           "  // d too\n"
                           "} // root\n"
                           "// end");
    EXPECT_EQ(write(root.get()), R"(// for the root
// and
// * more
{
  // for a, as nothing stands before it
  "a": 1, // behind a
  // above b
  //
  // key
  // colon
  "b": [
    1, // one
    2,
    // three
    3, // after
    4 // last
  ],
  "c": {}, // inside behind
  "d": {
    "e": 5 // e
  } // d d too
} // root end
)");
    EXPECT_STREQ(QvJsonValue_member(root.get(), "d")->pComment2, "d\nd too");
}

TEST(JsonReader, BadArgumentsAndFilesThatCannotBeRead)
{
    Traces traces;
    QvJsonReaderHandle_t reader = 0;
    QvJsonValue_t* pValue = nullptr;
    const char text[] = "1";
    EXPECT_EQ(QvJsonReader_open(nullptr), 13);
    EXPECT_EQ(QvJsonReader_close(nullptr), 13);
    EXPECT_EQ(QvJsonReader_close(&reader), 0);
    EXPECT_EQ(QvJsonReader_parse(0, text, text + 1, &pValue), 13);
    ASSERT_EQ(QvJsonReader_open(&reader), 0);
    EXPECT_EQ(QvJsonReader_parse(reader, nullptr, text, &pValue), 13);
    EXPECT_EQ(QvJsonReader_parse(reader, text + 1, text, &pValue), 13);
    EXPECT_EQ(QvJsonReader_parse(reader, text, text + 1, nullptr), 13);
    EXPECT_EQ(QvJsonReader_load(reader, nullptr, &pValue), 13);
    EXPECT_EQ(traces.take(), "");
    EXPECT_EQ(QvJsonReader_load(reader, "/no/such/file.json", &pValue), 3);
    EXPECT_TRUE(traces.take().ends_with("(3): /no/such/file.json\n"));
    EXPECT_EQ(QvJsonReader_load(reader, QV_SOURCE_DIR, &pValue), 9);
    EXPECT_EQ(pValue, nullptr);

    // The reader goes on after a failure, and doesn't take a pointer that would be lost.
    const std::string broken = "[{\"\\u0061\": [\"b\"";
    EXPECT_EQ(QvJsonReader_parse(reader, broken.data(), broken.data() + broken.size(), &pValue), 7);
    EXPECT_EQ(pValue, nullptr);
    EXPECT_EQ(QvJsonReader_parse(reader, text, text + 1, &pValue), 0);
    EXPECT_EQ(QvJsonReader_parse(reader, text, text + 1, &pValue), 13);
    EXPECT_EQ(QvJsonValue_asInteger(pValue), 1);
    QvJsonValue_delete(&pValue);
    QvJsonReader_close(&reader);
}
