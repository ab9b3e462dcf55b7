#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/files.h"
#include "json_document.h"

using namespace qv::test;

namespace {

std::string scalar(const QvJsonValue_t& value)
{
    switch (value.type) {
    case QvJsonValueType_Boolean:
        return value.holder._bool ? "true" : "false";
    case QvJsonValueType_Integer:
        return std::to_string(value.holder.integer);
    case QvJsonValueType_Float:
        return "float " + std::to_string(std::bit_cast<uint64_t>(value.holder._float));
    case QvJsonValueType_String:
        return std::string("text ") + value.holder.pChar;
    default:
        return "null";
    }
}

// A line for each value and each end of a container: the comments before it, its key, what it is, those behind it.
void list(const QvJsonValue_t& value, std::string& lines, const std::string& key = "")
{
    const bool isArray = value.type == QvJsonValueType_Array;
    const bool isObject = value.type == QvJsonValueType_Object;
    lines += std::string("\n") + (value.pComment != nullptr ? value.pComment : "") + "|" + key + "|";
    lines += isArray ? "[" : isObject ? "{" : scalar(value);
    for (size_t index = 0; isArray && index < value.holder.pArray->number; ++index) {
        list(value.holder.pArray->pValues[index], lines);
    }
    for (size_t index = 0; isObject && index < value.holder.pObject->number; ++index) {
        list(*value.holder.pObject->pPairs[index].pValue, lines, value.holder.pObject->pPairs[index].pKey);
    }
    lines += isArray ? "\n]" : isObject ? "\n}" : "";
    lines += value.pComment2 != nullptr ? std::string("|") + value.pComment2 : "";
}

// Makes the lines of what a walk tells, and holds the walk to what it says of its events.
class Listing {
public:
    explicit Listing(std::string_view text) : text_(text) {}

    static int visit(void* pUserData, const QvJsonWalkEvent_t* pEvent)
    {
        static_cast<Listing*>(pUserData)->take(*pEvent);
        return 0;
    }

    void take(const QvJsonWalkEvent_t& event)
    {
        EXPECT_LE(end_, event.begin) << text_;
        EXPECT_LE(event.begin, event.end) << text_;
        ASSERT_LE(event.end, text_.size());
        if (fault.empty() && event.kind != QvJsonWalkKind_Fault) {
            const std::string_view between = text_.substr(end_, event.begin - end_);
            EXPECT_EQ(between.find_first_not_of(" \t\r\n,:\xEF\xBB\xBF"), std::string_view::npos) << text_;
        }
        end_ = event.begin != event.end ? event.end : end_;
        const bool isEnd = event.kind == QvJsonWalkKind_ObjectEnd || event.kind == QvJsonWalkKind_ArrayEnd;
        if (event.kind != QvJsonWalkKind_Comment) {
            EXPECT_EQ(event.depth, open_.size() - (isEnd ? 1 : 0)) << text_;
        }
        const std::string content = event.pText != nullptr ? event.pText : "";
        switch (event.kind) {
        case QvJsonWalkKind_Fault:
            if (fault.empty()) {
                size_t line = 0;
                size_t column = 0;
                EXPECT_EQ(QvJsonReader_place(text_.data(), text_.data() + text_.size(), event.begin, &line, &column),
                          0);
                fault = content + " at line " + std::to_string(line) + ", column " + std::to_string(column);
            }
            break;
        case QvJsonWalkKind_Comment:
            if (event.isBehind && isBehindValue()) {
                addBehind(content);
            } else {
                waiting_ += (hasWaiting_ ? "\n" : "") + content;
                hasWaiting_ = true;
            }
            break;
        case QvJsonWalkKind_Key:
            key_ = content;
            if (!open_.empty()) {
                hasDoubledKey = hasDoubledKey || !open_.back().keys.insert(key_).second;
            }
            break;
        case QvJsonWalkKind_Value:
            EXPECT_EQ(event.type, event.value.type);
            add(event, scalar(event.value));
            break;
        case QvJsonWalkKind_ObjectBegin:
        case QvJsonWalkKind_ArrayBegin:
            add(event, event.kind == QvJsonWalkKind_ArrayBegin ? "[" : "{");
            open_.push_back({event.begin, 0, lines.back(), {}});
            break;
        default:
            ASSERT_TRUE(isEnd && !open_.empty()) << text_;
            giveBack();
            EXPECT_EQ(open_.back().bracket, event.kind == QvJsonWalkKind_ArrayEnd ? '[' : '{') << text_;
            EXPECT_EQ(open_.back().begin, event.opened) << text_;
            lines += event.kind == QvJsonWalkKind_ArrayEnd ? "\n]" : "\n}";
            hasBehind_ = false;
            isOpened_ = false;
            open_.pop_back();
            giveBack();
            break;
        }
    }

    // What is left goes to the document's value.
    void finish()
    {
        EXPECT_TRUE(open_.empty()) << text_;
        giveBack();
    }

    std::string lines;
    std::string fault;          // the first one, as the reader traces it
    bool hasDoubledKey = false; // of which a tree has the last value alone

private:
    struct Open {
        size_t begin;
        size_t number;
        char bracket;
        std::set<std::string> keys;
    };

    void add(const QvJsonWalkEvent_t& event, const std::string& content)
    {
        if (!open_.empty() && fault.empty()) {
            EXPECT_EQ(event.index, open_.back().number++) << text_;
        }
        const bool isMember = !open_.empty() && open_.back().bracket == '{';
        lines += "\n" + std::exchange(waiting_, "") + "|" + (isMember ? key_ : "") + "|" + content;
        hasWaiting_ = false;
        hasBehind_ = false;
        isOpened_ = event.kind != QvJsonWalkKind_Value;
    }

    bool isBehindValue() const { return !isOpened_ && !lines.empty(); }

    // Of the value whose line is the last.
    void addBehind(const std::string& comment)
    {
        lines += (hasBehind_ ? "\n" : "|") + comment;
        hasBehind_ = true;
    }

    // Comments that no value follows.
    void giveBack()
    {
        if (hasWaiting_ && isBehindValue()) {
            addBehind(std::exchange(waiting_, ""));
            hasWaiting_ = false;
        }
    }

    std::string_view text_;
    size_t end_ = 0;
    std::vector<Open> open_;
    std::string key_;
    std::string waiting_; // comments without a value
    bool hasWaiting_ = false;
    bool hasBehind_ = false; // the last value has a comment behind it
    bool isOpened_ = false;  // the last line opens a container
};

class Walks : public testing::Test {
protected:
    // Whether reader and walk say the same of a text; gives the reader's status.
    int compare(std::string_view text)
    {
        const Exact exact(text);
        Tree tree;
        const int status = reader_.parse(exact, &tree);
        const std::string trace = traces_.take();
        Listing listing({exact.begin(), text.size()});
        EXPECT_EQ(QvJsonReader_walk(reader_.handle(), exact.begin(), exact.end(), Listing::visit, &listing), status)
            << text;
        EXPECT_EQ(traces_.take(), "");
        listing.finish();
        if (status == 0) {
            EXPECT_EQ(listing.fault, "") << text;
            std::string lines;
            list(*tree, lines);
            EXPECT_TRUE(listing.lines == lines || listing.hasDoubledKey) << text << listing.lines << lines;
        } else {
            EXPECT_TRUE(!listing.fault.empty() && trace.ends_with(": " + listing.fault + "\n"))
                << text << "\n"
                << trace << listing.fault;
        }
        return status;
    }

    Traces traces_;
    Reader reader_;
};

} // namespace

TEST_F(Walks, TellTheTreeThatTheReaderMakesAndItsFirstFault)
{
    const std::string sample = readFile(QV_SOURCE_DIR "/examples/documents/imx477.json");
    ASSERT_GT(sample.size(), 400000U);
    EXPECT_EQ(compare(sample), 0);
    EXPECT_EQ(compare(""), 7);
    EXPECT_EQ(compare(std::string(512, '[') + std::string(512, ']')), 0);
    EXPECT_EQ(compare(std::string(513, '[') + std::string(513, ']')), 7);
    std::mt19937 random(565);
    int accepted = 0;
    int refused = 0;
    for (int turn = 0; turn < 4000 && !HasFailure(); ++turn) {
        const std::string text = layOut(random);
        (compare(turn % 2 == 0 ? text : mutate(text, random)) == 0 ? accepted : refused) += 1;
    }
    EXPECT_GT(accepted, 1000);
    EXPECT_GT(refused, 1000);
}

namespace {

// A text with a line below each place that is bad: a caret, what is said, and the line of the bracket to look at.
std::string marked(std::string_view text)
{
    struct Faults {
        std::string_view text;
        std::vector<std::string> below;
    } faults{text, {}};
    const auto visit = [](void* pUserData, const QvJsonWalkEvent_t* pEvent) {
        auto& result = *static_cast<Faults*>(pUserData);
        const auto place = [&](size_t offset, size_t* pColumn) {
            size_t line = 0;
            const char* pText = result.text.data();
            EXPECT_EQ(QvJsonReader_place(pText, pText + result.text.size(), offset, &line, pColumn), 0);
            return line;
        };
        if (pEvent->kind == QvJsonWalkKind_Fault) {
            size_t column = 0;
            const size_t line = place(pEvent->begin, &column);
            result.below.resize(std::max(result.below.size(), line));
            result.below[line - 1] += std::string(column - 1, ' ') + "^ " + pEvent->pText;
            if (pEvent->suspect != QV_JSON_WALK_NONE) {
                result.below[line - 1] += "; see line " + std::to_string(place(pEvent->suspect, nullptr));
            }
            result.below[line - 1] += "\n";
        }
        return 0;
    };
    EXPECT_EQ(QvJsonReader_walk(Reader().handle(), text.data(), text.data() + text.size(), visit, &faults), 7);
    std::istringstream lines{std::string(text)};
    std::string result;
    size_t number = 0;
    for (std::string line; std::getline(lines, line); ++number) {
        result += line + "\n" + (number < faults.below.size() ? faults.below[number] : "");
    }
    return result + (number < faults.below.size() ? faults.below[number] : "");
}

// The text alone.
std::string unmarked(std::string_view text)
{
    std::istringstream lines{std::string(text)};
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        const size_t first = line.find_first_not_of(' ');
        result += first != std::string::npos && line[first] == '^' ? "" : line + "\n";
    }
    return result;
}

// Texts with what is told of each fault below it. '@' stands for a zero byte.
constexpr std::string_view kTexts[] = {
    R"({
  "comma": 1
  "colon" 2,
  ^ expected ',' or '}'
          ^ expected ':'
  "word": maybe, "number": -, "none": ,
          ^ expected a value
                            ^ expected a digit
                                      ^ expected a value
  "list": [1 2, 03, {"a": 1,}, [5; [6, 7], "," ], "b"],
             ^ expected ',' or ']'
                 ^ expected ',' or ']'
                            ^ expected a key
                                 ^ expected ',' or ']'
  # a comment, elsewhere
  ^ expected a key
  "escape\q": ["passed over", "}"], "text": "\u12",
          ^ expected one of "\/bfnrtu behind the backslash
                                               ^ expected four hex digits
  "slash": [1, / 2, 3],
                ^ expected '/' or '*' of a comment
  "quote": "is missing,
                       ^ expected '"' or an escape instead of a control character
  "key: {
         ^ expected '"' or an escape instead of a control character
    "passed over": [1]
  },
  "last": 1,
}
^ expected a key
)",
    R"({
  "whole": {
    "a": 1
  },
  "open": {
    "inner": {
      "a": [1, 2]
    },
  "next": {
    "b": 2
  }
}
^ expected ',' or '}'; see line 5
)",
    R"({
  "whole": [{
      "a": 1
    }, {
      "a": {
        "b": 2
    }, {
       ^ expected a key; see line 5
      "a": 2
    }],
  "list": [
    [1, 2],
    [3, 4
  ],
  "next": [
        ^ expected ',' or ']'; see line 12
    5
  "key": 6,
  ^ expected ',' or ']'; see line 14
  "more": [
    7,
  "key": 8,
       ^ expected ',' or ']'; see line 17
  "last": [{"a": [1, 2}, {"b": {"c": 3], "d": [4}, "e": 5]
                      ^ expected ',' or ']'; see line 20
                                      ^ expected ',' or '}'; see line 20
                                                ^ expected ',' or ']'; see line 20
                                                         ^ expected ',' or '}'; see line 20
}
)",
    R"({
  "whole": {
    "a": 1
  },
  "closed": {
    "a": {
      "b": 1
    }},
    "c": 3
  },
   ^ expected the end of the text; see line 8
  "d": 4
}
)",
    R"({
  "list": [{
      "a": {
        "b": 1
      }},
      "c": 2
         ^ expected ',' or ']'; see line 5
    }, {
      "a": {"b": 1}
    }}, {
     ^ expected ',' or ']'; see line 9
      "a": 2
    }],
  "next": 1
}
)",
    R"({
  "item": [1, /x 2], "colon" /: 1, "comma": 2 / ,
               ^ expected '/' or '*' of a comment
                              ^ expected '/' or '*' of a comment
                                               ^ expected '/' or '*' of a comment
  "next": "a" #
              ^ expected ',' or '}'
}
)",
    R"({
  "zero": [1, /* @ */ 2, 03], /* two
                 ^ expected a comment without zero bytes
                          ^ expected ',' or ']'
 lines @@ */ "text": @, // @
       ^ expected a comment without zero bytes
                     ^ expected a value
                           ^ expected a comment without zero bytes
  "next": 04
           ^ expected ',' or '}'
}
)",
    R"(/ a
 ^ expected '/' or '*' of a comment
[1, 2] / b
        ^ expected '/' or '*' of a comment
)",
    R"([
  "lost": 1, "more": 2}, {"a": [3}, 4, "mistyped": [5}
        ^ expected ',' or ']'; see line 1
                                 ^ expected ',' or ']'; see line 2
                                                 ^ expected ',' or ']'; see line 2
^ expected ',' or ']'; see line 1
)",
};
} // namespace

TEST(Walk, TellsAllFaultsAndNoneThatComesOfAnother)
{
    for (const std::string_view text : kTexts) {
        std::string bytes = unmarked(text);
        std::ranges::replace(bytes, '@', '\0');
        std::string result = marked(bytes);
        std::ranges::replace(result, '\0', '@');
        EXPECT_EQ(result, text);
    }
}

TEST(Walk, EndsWithTheStatusOfItsVisitorAtAnyEvent)
{
    const Reader reader;
    const auto visit = [](void* pLeft, const QvJsonWalkEvent_t*) { return --*static_cast<int*>(pLeft) == 0 ? 99 : 0; };
    for (const std::string_view marks : kTexts) {
        const std::string text = unmarked(marks);
        const auto walk = [&](int* pLeft) {
            return QvJsonReader_walk(reader.handle(), text.data(), text.data() + text.size(), visit, pLeft);
        };
        int uncounted = 0;
        EXPECT_EQ(walk(&uncounted), 7);
        for (int number = 1; number <= -uncounted; ++number) {
            int left = number;
            ASSERT_EQ(walk(&left), 99) << text;
            ASSERT_EQ(left, 0) << text;
        }
    }
}

TEST(Walk, BadArgumentsAreRefused)
{
    const Reader reader;
    const auto visit = [](void*, const QvJsonWalkEvent_t*) { return 99; };
    const char text[] = "{},\n 1";
    const char* pEnd = text + 6;
    EXPECT_EQ(QvJsonReader_walk(0, text, pEnd, visit, nullptr), 13);
    EXPECT_EQ(QvJsonReader_walk(reader.handle(), nullptr, pEnd, visit, nullptr), 13);
    EXPECT_EQ(QvJsonReader_walk(reader.handle(), text, nullptr, visit, nullptr), 13);
    EXPECT_EQ(QvJsonReader_walk(reader.handle(), pEnd, text, visit, nullptr), 13);
    EXPECT_EQ(QvJsonReader_walk(reader.handle(), text, pEnd, nullptr, nullptr), 13);
    size_t place = 7;
    EXPECT_EQ(QvJsonReader_place(nullptr, pEnd, 0, &place, &place), 13);
    EXPECT_EQ(QvJsonReader_place(text, nullptr, 0, &place, &place), 13);
    EXPECT_EQ(QvJsonReader_place(pEnd, text, 0, &place, &place), 13);
    EXPECT_EQ(QvJsonReader_place(text, pEnd, 7, &place, &place), 13);
    EXPECT_EQ(place, 7U);
    EXPECT_EQ(QvJsonReader_place(text, pEnd, 5, nullptr, &place), 0);
    EXPECT_EQ(place, 2U);
    EXPECT_EQ(QvJsonReader_place(text, text, 0, &place, nullptr), 0);
    EXPECT_EQ(place, 1U);
}
