#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>
#include <string>

#include "common/files.h"
#include "json_document.h"

using namespace qv::test;

namespace {

std::string printed(double value, int decimals)
{
    char text[512];
    std::snprintf(text, sizeof(text), "%.*f", decimals, value);
    return text;
}

void setComment(char*& pComment, const char* pText)
{
    std::free(pComment);
    pComment = strdup(pText);
}

} // namespace

TEST(JsonWriter, ASmallTreeHasExactlyTheseBytes)
{
    const Tree root = read(R"({
        "version": {"text": "a \"quoted\" \\ / \n\u0001 \u007F", "half": 0.5},
        "modes": [{"on": false, "rates": [{"fps": 30}]}, {"on": true, "rates": [{"fps": 31}]}],
        "matrix": [[-0.0, -9223372036854775808], [-1.0, -9223372036854775808]],
        "nothing": null, "object": {}, "list": []})");
    QvJsonValue_t* pVersion = QvJsonValue_member(root.get(), "version");
    QvJsonValue_addFloatToObject(pVersion, "notFinite", std::numeric_limits<double>::infinity());
    EXPECT_EQ(write(root.get()), R"({
  "version": {
    "text": "a \"quoted\" \\ / \n\u0001 )"
                                 "\x7F"
                                 R"(",
    "half": 0.500000,
    "notFinite": null
  },
  "modes": [{
      "on": false,
      "rates": [{
          "fps": 30
        }]
    }, {
      "on": true,
      "rates": [{
          "fps": 31
        }]
    }],
  "matrix": [[-0.000000, -9223372036854775808], [-1.000000, -9223372036854775808]],
  "nothing": null,
  "object": {},
  "list": []
}
)");
}

TEST(JsonWriter, LayoutFollowsItsParameters)
{
    const Tree root = read(R"({"list": [1, 2, 3, 4, 5], "float": 2.5})");
    QvJsonWriterOpenParam_t param = {0, 2, {'\t', '\t', '\t', '\t', '\t', '\t', '\t', '\t', '\t', '\t'}};
    const std::string tabs(10, '\t');
    EXPECT_EQ(write(root.get(), &param), std::string("{\n") + tabs + "\"list\": [1, 2,\n" + tabs + tabs + "3, 4,\n" +
                                             tabs + tabs + "5],\n" + tabs + "\"float\": 2\n}\n");
    param = {17, 0, ""};
    EXPECT_EQ(write(root.get(), &param), "{\n\"list\": [1, 2, 3, 4, 5],\n\"float\": 2.50000000000000000\n}\n");

    QvJsonWriterHandle_t writer = 0;
    for (QvJsonWriterOpenParam_t wrong : {QvJsonWriterOpenParam_t{18, 0, "  "}, QvJsonWriterOpenParam_t{-1, 0, "  "},
                                          QvJsonWriterOpenParam_t{6, 0, " ,"}}) {
        EXPECT_EQ(QvJsonWriter_open(&wrong, &writer), 13);
    }
    EXPECT_EQ(writer, 0U);
}

TEST(JsonWriter, FloatsAreWhatPrintfWrites)
{
    std::mt19937_64 random(20240);
    for (const int decimals : {6, 6, 6, 6, 0, 1, 3, 7, 13, 17}) {
        const Tree list = make(QvJsonValueType_Array);
        std::string expected;
        const auto add = [&](double value) {
            if (std::isfinite(value)) {
                QvJsonValue_addFloatToArray(list.get(), value);
                expected += (expected.empty() ? "[" : ", ") + printed(value, decimals);
            }
        };
        for (int index = 0; index < 8000; ++index) {
            add(std::bit_cast<double>(random()));
            // Magnitudes around those of documents and of the limits, and exact ties.
            add(std::ldexp(static_cast<double>(static_cast<int64_t>(random())), -static_cast<int>(random() % 110)));
            add(static_cast<double>(random() % 2000001) / 128 - 7812.5);
            add(static_cast<float>(static_cast<int64_t>(random() % 8000001) - 4000000) / 1e6F);
            // What lies beside a tie of six decimals, of any size.
            const double tie =
                (static_cast<double>(static_cast<int64_t>(random()) >> (20 + random() % 44)) + 0.5) / 1e6;
            add(tie);
            add(std::nextafter(tie, 0.0));
            add(std::nextafter(tie, 1e300));
        }
        for (const double value :
             {0.0, -0.0, 0.9999995, 0.99999949999999995, 999999.9999995, 0x1p43, 0x1p43 - 0.0009765625, 0x1p53,
              9.9999994, 99.9999995, 5e-324, 1.7976931348623157e308, 5e-7, 4.9999999999999998e-7}) {
            add(value);
            add(-value);
        }
        QvJsonWriterOpenParam_t param = {decimals, 0, "  "};
        // No comparison macro: on failure it would compute a difference of megabytes.
        ASSERT_TRUE(write(list.get(), &param) == expected + "]\n") << decimals << " decimals";
    }
}

TEST(JsonWriter, EveryTextItWritesIsReadBack)
{
    const Tree root = make(QvJsonValueType_Object);
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text = std::string("<") + static_cast<char>(byte) + ">";
        QvJsonValue_addStringToObject(root.get(), text.c_str(), text.c_str());
        QvJsonValue_addStringToObject(root.get(), (std::string("-") + text).c_str(),
                                      (text + static_cast<char>(byte)).c_str());
    }
    QvJsonValue_addStringToObject(root.get(), "valid", "\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E");
    const Tree again = read(write(root.get()));
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text = std::string("<") + static_cast<char>(byte) + ">";
        const std::string expected = byte < 0x80 ? text : "<\xEF\xBF\xBD>";
        EXPECT_EQ(QvJsonValue_asString(QvJsonValue_member(again.get(), expected.c_str())), expected) << byte;
    }
    EXPECT_STREQ(QvJsonValue_asString(QvJsonValue_member(again.get(), "valid")),
                 "\xC3\xA4\xE2\x82\xAC\xF0\x9D\x84\x9E");
    EXPECT_STREQ(QvJsonValue_asString(QvJsonValue_member(again.get(), "-<\xEF\xBF\xBD>")),
                 "<\xEF\xBF\xBD>\xEF\xBF\xBD");
}

TEST(JsonWriter, CommentsAreWrittenBack)
{
    const std::string text = "// two\n"
                             "// lines\n"
                             "{\n"
                             "  // above\n"
                             "  //\n"
                             "  // a\n"
                             "  \"a\": [\n"
                             "    1, // one\n"
                             "    // two\n"
                             "    2,\n"
                             "    {\n"
                             "      \"x\": {}\n"
                             "    }, // three\n"
                             "    [] // four\n"
                             "  ],\n"
                             "  \"b\": [[\n"
                             "      1 // inner\n"
                             "    ], [2]], // b\n"
                             "  \"c\": \"//\" //\n"
                             "} // root\n";
    const Tree root = read(text);
    EXPECT_EQ(write(root.get()), text);

    setComment(QvJsonValue_member(root.get(), "c")->pComment2, "from\na\r\nprogram \xFF");
    setComment(QvJsonValue_member(root.get(), "c")->pComment, "from\n*/ a\nprogram");
    const Tree again = read(write(root.get()));
    EXPECT_STREQ(QvJsonValue_member(again.get(), "c")->pComment2, "from a  program \xEF\xBF\xBD");
    EXPECT_STREQ(QvJsonValue_member(again.get(), "c")->pComment, "from\n*/ a\nprogram");
}

TEST(JsonWriter, CommentsThatNoReaderHasMadeSettleWithTheFirstWriting)
{
    for (const char* pComment : {"", "\n", " a ", "a\n", "\na", "a\n\n\tb\r\n", "\r", "a\rb", "\v", "*/", "\xFF "}) {
        const Tree root = read("[[], {\"a\": 1}]");
        for (QvJsonValue_t* pValue : {root.get(), QvJsonValue_item(root.get(), 0), QvJsonValue_item(root.get(), 1),
                                      QvJsonValue_member(QvJsonValue_item(root.get(), 1), "a")}) {
            setComment(pValue->pComment, pComment);
            setComment(pValue->pComment2, pComment);
        }
        const std::string written = write(root.get());
        EXPECT_EQ(write(read(written).get()), written);
    }
}

TEST(JsonWriter, ATreeDeeperThanTheReaderTakesIsRefused)
{
    Traces traces;
    const Tree root = make(QvJsonValueType_Array);
    QvJsonValue_t* pValue = root.get();
    for (int depth = 1; depth < 512; ++depth) {
        pValue = depth % 2 == 0 ? QvJsonValue_item(pValue, 0) : QvJsonValue_member(QvJsonValue_item(pValue, 0), "x");
        depth += depth % 2;
    }
    QvJsonWriterHandle_t writer = 0;
    ASSERT_EQ(QvJsonWriter_open(nullptr, &writer), 0);
    char* pText = nullptr;
    EXPECT_EQ(QvJsonWriter_stringify(writer, root.get(), &pText), 0);
    read(pText);
    std::free(pText);
    pText = nullptr;
    QvJsonValue_item(QvJsonValue_item(pValue, 0), 0);
    EXPECT_EQ(QvJsonWriter_stringify(writer, root.get(), &pText), 6);
    EXPECT_EQ(pText, nullptr);
    EXPECT_TRUE(traces.take().ends_with("(6): more than 512 nested objects and arrays\n"));
    QvJsonWriter_close(&writer);
}

TEST(JsonWriter, TheSampleDocumentIsSavedByteForByte)
{
    const std::string sample = QV_SOURCE_DIR "/examples/documents/imx477.json";
    const TemporaryFolder folder;
    const std::string copy = folder / "copy.json";
    const Reader reader;
    QvJsonWriterHandle_t writer = 0;
    QvJsonWriterOpenParam_t param = {6, 0, "  "};
    QvJsonValue_t* pValue = nullptr;
    ASSERT_EQ(QvJsonWriter_open(&param, &writer), 0);
    ASSERT_EQ(QvJsonReader_load(reader.handle(), sample.c_str(), &pValue), 0);
    EXPECT_EQ(QvJsonWriter_save(writer, pValue, copy.c_str()), 0);
    EXPECT_TRUE(readFile(copy) == readFile(sample));

    Traces traces;
    EXPECT_EQ(QvJsonWriter_save(writer, pValue, "/no/such/folder/file.json"), 3);
    EXPECT_TRUE(traces.take().ends_with("(3): /no/such/folder/file.json\n"));
    char* pText = nullptr;
    EXPECT_EQ(QvJsonWriter_save(writer, pValue, nullptr), 13);
    EXPECT_EQ(QvJsonWriter_save(writer, nullptr, copy.c_str()), 13);
    EXPECT_EQ(QvJsonWriter_stringify(0, pValue, &pText), 13);
    EXPECT_EQ(QvJsonWriter_stringify(writer, pValue, nullptr), 13);
    EXPECT_EQ(QvJsonWriter_open(&param, nullptr), 13);
    EXPECT_EQ(QvJsonWriter_close(nullptr), 13);
    EXPECT_EQ(QvJsonWriter_close(&writer), 0);
    QvJsonValue_delete(&pValue);
}
