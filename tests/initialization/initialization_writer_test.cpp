
#include <gtest/gtest.h>

#include "common/files.h"
#include "initialization_document.h"

namespace {

TEST(InitializationWriter, WritesTheFormThatPeopleEdit)
{
    const std::vector<Section> sections = {
        {{}, {{"first", "1"}}},
        {"SS",
         {{"driverName", "imx477"},
          {"folder", ""},
          {"alone"},
          {"note", " a; \"b\"\n\x01", "two\nlines\n"},
          {"paths[0].x", "/a b=c[d]\"e\\"},
          {"[k]", "\"q"},
          {"", "v"}},
         {"top", ""}},
        {"a]b"},
        {""},
    };
    EXPECT_EQ(writeText(sections), "first = 1\n"
                                   "\n"
                                   "; top\n"
                                   ";\n"
                                   "[SS]\n"
                                   "driverName = imx477\n"
                                   "folder = \n"
                                   "alone\n"
                                   "; two\n"
                                   "; lines\n"
                                   ";\n"
                                   "note = \" a; \\\"b\\\"\\n\\x01\"\n"
                                   "paths[0].x = /a b=c[d]\"e\\\n"
                                   "\"[k]\" = \"\\\"q\"\n"
                                   "\"\" = v\n"
                                   "\n"
                                   "[\"a]b\"]\n"
                                   "\n"
                                   "[\"\"]\n"
                                   "\n");
    EXPECT_EQ(writeText({}), "");
}

TEST(InitializationWriter, TheSampleComesBackByteForByte)
{
    const std::string sample = qv::test::readFile(QV_SOURCE_DIR "/examples/documents/imx477.ini");
    const ReadResult result = readText(sample);
    ASSERT_EQ(result.sections.size(), 6u);
    EXPECT_EQ(
        result.sections[4],
        (Section{
            "SS",
            {{"driverName", "imx477"}, {"modeIdx", "1"}, {"testPattern.enable", "false"}, {"testPattern.type", "0"}}}));
    EXPECT_EQ(writeText(result.sections), sample);
}

TEST(InitializationWriter, WhatAProgramMadeSettlesWithTheFirstWriting)
{
    const Section none = {{}, {}, {}};
    const Section bare = {{}, {{"k", "1", "on k"}}, {"of none", ""}};
    const Section named = {"a", {{"m", "2"}}, {"of a", " two\nlines "}};
    const std::vector<std::vector<Section>> cases = {
        {none},        {bare},       {named},       {none, named},      {bare, named},
        {named, bare}, {bare, bare}, {named, none}, {none, bare, none}, {named, bare, named, {"b"}, none, bare},
    };
    for (const std::vector<Section>& sections : cases) {
        const std::string written = writeText(sections);
        const ReadResult result = readText(written);
        ASSERT_EQ(result.status, 0) << written;
        EXPECT_EQ(writeText(result.sections), written);
    }
}

// Line by line, as if there were sections. They have no comments, and only the first may lack a header.
std::string textOf(const std::vector<Section>& sections)
{
    QvInitializationTextHandle_t hText = 0;
    EXPECT_EQ(QvInitializationText_open(&hText), 0);
    for (const Section& section : sections) {
        if (section.header) {
            EXPECT_EQ(QvInitializationText_addHeader(hText, section.header->c_str()), 0);
        }
        for (const Member& member : section.members) {
            // What stands behind the value's characters is none of them.
            const std::string value = member.value.value_or("") + "behind";
            EXPECT_EQ(QvInitializationText_addMember(hText, member.key.c_str(), member.value ? value.data() : nullptr,
                                                     value.size() - 6),
                      0);
        }
    }
    QvCommonBuffer_t buffer = {};
    EXPECT_EQ(QvInitializationText_finish(hText, &buffer), 0);
    EXPECT_EQ(QvInitializationText_close(&hText), 0);
    EXPECT_EQ(hText, 0u);
    EXPECT_EQ(buffer.pBegin[buffer.size], 0);
    std::string text(buffer.pBegin, buffer.size);
    QvCommonBuffer_clear(&buffer);
    return text;
}

// Written as sections and line by line.
TEST(InitializationWriter, EveryTextSurvivesAsHeaderKeyAndValue)
{
    std::vector<std::string> texts = {""};
    for (int byte = 1; byte <= 255; byte++) {
        const std::string one(1, static_cast<char>(byte));
        texts.insert(texts.end(), {one, one + "a", "a" + one, "a" + one + "a", one + one});
    }
    for (const std::string& first : kPieces) {
        for (const std::string& second : kPieces) {
            for (const std::string& third : kPieces) {
                texts.push_back(std::string(first).append(second).append(third));
            }
        }
    }
    EXPECT_EQ(textOf({}), "");
    EXPECT_EQ(textOf({{"a"}, {"b"}}), writeText({{"a"}, {"b"}}));
    for (const std::string& text : texts) {
        // The key stands at the very start of the file, where a byte order mark would be skipped.
        const std::vector<Section> sections = {{{}, {{text, text}, {text}, {"k", text}}}, {text, {{text, ""}}}};
        const std::string written = writeText(sections);
        const ReadResult result = readText(written);
        ASSERT_EQ(result.status, 0) << written;
        ASSERT_EQ(result.sections, sections) << written << show(result.sections);
        ASSERT_EQ(textOf(sections), written);
    }
}

TEST(InitializationText, IsGivenAwayAndBeginsAnew)
{
    QvInitializationTextHandle_t hText = 0;
    QvCommonBuffer_t buffer = {};
    EXPECT_EQ(QvInitializationText_finish(0, &buffer), 13);
    EXPECT_EQ(QvInitializationText_addMember(0, "a", "1", 1), 13);
    EXPECT_EQ(QvInitializationText_addHeader(0, "a"), 13);
    ASSERT_EQ(QvInitializationText_open(&hText), 0);
    EXPECT_EQ(QvInitializationText_addMember(hText, nullptr, "1", 1), 13);
    EXPECT_EQ(QvInitializationText_addHeader(hText, nullptr), 13);
    EXPECT_EQ(QvInitializationText_finish(hText, nullptr), 13);
    for (int round = 0; round < 2; round++) {
        ASSERT_EQ(QvInitializationText_addMember(hText, "a", "12345", 3), 0);
        ASSERT_EQ(QvInitializationText_finish(hText, &buffer), 0); // the buffer's text before goes
        EXPECT_STREQ(buffer.pBegin, "a = 123\n\n");
    }
    const std::string large(100000, 'v'); // more than there is room for at once
    ASSERT_EQ(QvInitializationText_addMember(hText, "large", large.data(), large.size()), 0);
    ASSERT_EQ(QvInitializationText_finish(hText, &buffer), 0);
    EXPECT_TRUE(buffer.pBegin == "large = " + large + "\n\n");
    ASSERT_EQ(QvInitializationText_finish(hText, &buffer), 0);
    EXPECT_EQ(buffer.size, 0u);
    QvCommonBuffer_clear(&buffer);
    EXPECT_EQ(QvInitializationText_close(&hText), 0);
}

} // namespace
