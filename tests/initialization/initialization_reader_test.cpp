#include <gtest/gtest.h>

#include "initialization_document.h"

namespace {

using namespace std::string_literals;

struct Case {
    std::string text;
    std::string expected;
};

void checkAll(const std::vector<Case>& cases)
{
    for (const Case& row : cases) {
        const ReadResult result = readText(row.text);
        EXPECT_EQ(result.status, 0) << row.text;
        EXPECT_EQ(show(result.sections), row.expected) << row.text;
        EXPECT_TRUE(result.traces.empty()) << row.text;
    }
}

TEST(InitializationReader, HandWrittenLinesReadAsAnyoneWouldExpect)
{
    checkAll({
        {"", ""},
        {" \t\n\r\n", ""},
        {"\xEF\xBB\xBF[a]\nk=1", "['a'] 'k'='1'\n"},
        {"[a]\r\nk = 1\r\n[b]\rk = 2\r", "['a'] 'k'='1'\n['b'] 'k'='2'\n"},
        {"  [  a b ]\t\n\t my key\t=  two  words \t", "['a b'] 'my key'='two  words'\n"},
        {"[a]\nk=1\nk=2\n[b]\n[a]\nk=3", "['a'] 'k'='1' 'k'='2'\n['b']\n['a'] 'k'='3'\n"},
        {"k=0\n[a]", "[] 'k'='0'\n['a']\n"},
        {"[a]\nalone\nempty=\nblank = \n", "['a'] 'alone' 'empty'='' 'blank'=''\n"},
        {"[a]\npaths[0].x = [1] = 2\n", "['a'] 'paths[0].x'='[1] = 2'\n"},
        {"[a]\nk = /a;b #c\nm ; n", "['a'] 'k'='/a;b #c' 'm ; n'\n"},
        {"[a]\nk = \xFF\xC3(\x01", "['a'] 'k'='\xFF\xC3(\x01'\n"},
        {"[" + std::string(100000, 'h') + "]", "['" + std::string(100000, 'h') + "']\n"},
        {"k = " + std::string(100000, 'v'), "[] 'k'='" + std::string(100000, 'v') + "'\n"},
        {"[]", "['']\n"},
    });
}

TEST(InitializationReader, CommentsStayWithWhatStandsBelowThem)
{
    checkAll({
        {"; one\n\n  #two\n[a]\n;;three \n#\nk = 1\nm = 2", "['a']{one}{two} 'k'='1'{;three\n} 'm'='2'\n"},
        {"[a] ; behind\n; above\nk = \"v\" # behind\n\"m\";x", "['a']{behind} 'k'='v'{above\nbehind} 'm'{x}\n"},
        {"; first\n[a]\n[b]\nk\n; last", "['a']{first}\n['b']{last} 'k'\n"},
        {"; nothing else", "[]{nothing else}\n"},
    });
}

TEST(InitializationReader, QuotesHoldWhatWouldNotSurviveWithoutThem)
{
    checkAll({
        {R"(k = "  a;b#c  ")", "[] 'k'='  a;b#c  '\n"},
        {R"(k = "\\ \" \n \r \t \x41\x7f")", "[] 'k'='\\ \" \n \r \t A\x7F'\n"},
        {R"(k = "\q \x0 \x00 \xg1 \u0041")", "[] 'k'='\\q \\x0 \\x00 \\xg1 \\u0041'\n"},
        {R"("a = b" = 1)", "[] 'a = b'='1'\n"},
        {R"("" = 1)", "[] ''='1'\n"},
        {R"("alone ")", "[] 'alone '\n"},
        {R"(["a]b;" ] # c)", "['a]b;']{c}\n"},
        {R"(k = "")", "[] 'k'=''\n"},
        // Not whole quoted texts, so taken as they stand.
        {R"(k = "open)", "[] 'k'='\"open'\n"},
        {R"(k = "C:\dir\")", "[] 'k'='\"C:\\dir\\\"'\n"},
        {R"(k = "a" b)", "[] 'k'='\"a\" b'\n"},
        {R"(k = a "b;c")", "[] 'k'='a \"b;c\"'\n"},
        {R"("a" b = 1)", "[] '\"a\" b'='1'\n"},
        {R"("a = 1)", "[] '\"a'='1'\n"},
        {R"(["a" b])", "['\"a\" b']\n"},
    });
}

TEST(InitializationReader, ABrokenLineIsNamedAndNothingIsPushed)
{
    const std::vector<Case> cases = {
        {"[a]\nk = 1\n[section", "expected ']' at line 3, column 9"},
        {"[a]\r\n  [b \r\n", "expected ']' at line 2, column 5"},
        {"[a]\r\r[b] ; fine\r[c] x", "expected the end of the line at line 4, column 5"},
        {"[\"a]\"", "expected the end of the line at line 1, column 5"},
        {"k\n\t = 1", "expected a key at line 2, column 3"},
        {"k\nm = \0"s, "expected text, not a zero byte at line 2, column 5"},
    };
    for (const Case& row : cases) {
        const ReadResult result = readText(row.text);
        EXPECT_EQ(result.status, 7) << row.text;
        EXPECT_TRUE(result.sections.empty()) << row.text;
        ASSERT_EQ(result.traces.size(), 1u) << row.text;
        EXPECT_TRUE(result.traces[0].ends_with("syntax error(7): " + row.expected)) << result.traces[0];
    }
}

} // namespace
