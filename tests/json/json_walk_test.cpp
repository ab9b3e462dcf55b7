#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "json_document.h"

using namespace qv::test;

namespace {

// A value as a tree or a walk tells it.
struct Node {
    std::string content; // a scalar's, or the container's brackets
    std::string comment = "-";
    std::string comment2 = "-";
    std::vector<std::pair<std::string, Node>> inner = {};

    bool operator==(const Node&) const = default;
};

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

Node nodeOf(const QvJsonValue_t& value)
{
    Node node{scalar(value)};
    node.comment = value.pComment != nullptr ? value.pComment : "-";
    node.comment2 = value.pComment2 != nullptr ? value.pComment2 : "-";
    if (value.type == QvJsonValueType_Array) {
        node.content = "[]";
        for (size_t index = 0; index < value.holder.pArray->number; ++index) {
            node.inner.emplace_back("", nodeOf(value.holder.pArray->pValues[index]));
        }
    } else if (value.type == QvJsonValueType_Object) {
        node.content = "{}";
        for (size_t index = 0; index < value.holder.pObject->number; ++index) {
            const QvJsonValuePair_t& pair = value.holder.pObject->pPairs[index];
            node.inner.emplace_back(pair.pKey, nodeOf(*pair.pValue));
        }
    }
    return node;
}

void join(std::string& text, const std::string& more)
{
    text = text == "-" ? more : text + "\n" + more;
}

// Builds the tree that a walk tells, and holds the walk to what it says of its events.
class Builder {
public:
    explicit Builder(std::string_view text) : text_(text) {}

    static int visit(void* pUserData, const QvJsonWalkEvent_t* pEvent)
    {
        static_cast<Builder*>(pUserData)->take(*pEvent);
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
            EXPECT_EQ(event.depth, open_.size());
            break;
        case QvJsonWalkKind_Comment:
            if (event.isBehind && last_ != nullptr) {
                join(last_->comment2, content);
            } else {
                join(waiting_, content);
            }
            break;
        case QvJsonWalkKind_Key:
            EXPECT_EQ(event.depth, open_.size());
            key_ = content;
            break;
        case QvJsonWalkKind_Value:
            EXPECT_EQ(event.type, event.value.type);
            add(event, scalar(event.value));
            break;
        case QvJsonWalkKind_ObjectBegin:
        case QvJsonWalkKind_ArrayBegin:
            open_.push_back({add(event, event.kind == QvJsonWalkKind_ArrayBegin ? "[]" : "{}"), event.begin, 0});
            last_ = nullptr;
            break;
        default:
            ASSERT_FALSE(open_.empty()) << text_;
            giveRest();
            last_ = open_.back().pNode;
            EXPECT_EQ(last_->content, event.kind == QvJsonWalkKind_ArrayEnd ? "[]" : "{}") << text_;
            EXPECT_EQ(open_.back().begin, event.opened) << text_;
            open_.pop_back();
            EXPECT_EQ(event.depth, open_.size()) << text_;
            giveRest();
            break;
        }
    }

    // The document, with each key once.
    Node finish()
    {
        EXPECT_TRUE(open_.empty()) << text_;
        giveRest();
        return merged(root_);
    }

    std::string fault; // the first one, as the reader traces it

private:
    struct Open {
        Node* pNode;
        size_t begin;
        size_t number;
    };

    Node* add(const QvJsonWalkEvent_t& event, std::string content)
    {
        EXPECT_EQ(event.depth, open_.size()) << text_;
        Node node{std::move(content), std::exchange(waiting_, "-"), "-", {}};
        if (open_.empty()) {
            root_ = std::move(node);
            last_ = &root_;
        } else {
            if (fault.empty()) {
                EXPECT_EQ(event.index, open_.back().number++) << text_;
            }
            auto& inner = open_.back().pNode->inner;
            inner.emplace_back(open_.back().pNode->content == "{}" ? key_ : "", std::move(node));
            last_ = &inner.back().second;
        }
        return last_;
    }

    void giveRest()
    {
        if (waiting_ != "-" && last_ != nullptr) {
            join(last_->comment2, std::exchange(waiting_, "-"));
        }
    }

    static Node merged(const Node& node)
    {
        Node result{node.content, node.comment, node.comment2};
        for (const auto& [key, inner] : node.inner) {
            bool isNew = true;
            for (auto& [otherKey, other] : result.inner) {
                if (node.content == "{}" && otherKey == key) {
                    other = merged(inner);
                    isNew = false;
                }
            }
            if (isNew) {
                result.inner.emplace_back(key, merged(inner));
            }
        }
        return result;
    }

    std::string_view text_;
    size_t end_ = 0;
    std::vector<Open> open_;
    Node root_;
    Node* last_ = nullptr; // the value that a comment behind it would belong to
    std::string waiting_ = "-";
    std::string key_;
};

class Walks : public testing::Test {
protected:
    Walks() { EXPECT_EQ(QvJsonReader_open(&reader_), 0); }
    ~Walks() override { QvJsonReader_close(&reader_); }
    Walks(const Walks&) = delete;
    Walks& operator=(const Walks&) = delete;

    // Whether reader and walk say the same of a text; gives the reader's status.
    int compare(std::string_view text)
    {
        const std::unique_ptr<char[]> exact(new char[text.size() + 1]);
        char* pText = exact.get() + 1;
        text.copy(pText, text.size());
        QvJsonValue_t* pRoot = nullptr;
        const int status = QvJsonReader_parse(reader_, pText, pText + text.size(), &pRoot);
        const Tree tree(pRoot);
        const std::string trace = traces_.take();
        Builder builder({pText, text.size()});
        EXPECT_EQ(QvJsonReader_walk(reader_, pText, pText + text.size(), Builder::visit, &builder), status) << text;
        EXPECT_EQ(traces_.take(), "");
        const Node root = builder.finish();
        if (status == 0) {
            EXPECT_EQ(builder.fault, "") << text;
            EXPECT_TRUE(root == nodeOf(*tree)) << text;
        } else {
            EXPECT_TRUE(!builder.fault.empty() && trace.ends_with(": " + builder.fault + "\n"))
                << text << "\n"
                << trace << builder.fault;
        }
        return status;
    }

    Traces traces_;
    QvJsonReaderHandle_t reader_ = 0;
};

std::string content(const char* pName)
{
    std::ifstream file(std::string(QV_SOURCE_DIR "/examples/documents/") + pName, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// A document of all that the language has, laid out at random.
class Generator {
public:
    explicit Generator(std::mt19937& random) : random_(random) {}

    std::string make()
    {
        text_ = below(8) == 0 ? "\xEF\xBB\xBF" : "";
        gap();
        value(0);
        gap();
        return text_;
    }

private:
    size_t below(size_t limit) { return random_() % limit; }

    template <size_t number>
    void oneOf(const std::string_view (&pieces)[number])
    {
        text_ += pieces[below(number)];
    }

    void gap()
    {
        constexpr std::string_view kGaps[] = {"",
                                              "",
                                              "",
                                              "",
                                              "",
                                              " ",
                                              "\n",
                                              "\n    ",
                                              "\r\n\t",
                                              "// note\n",
                                              " // \xC3\xA4\n",
                                              "/* one */",
                                              " /* two\n * three\n */ ",
                                              "/**/",
                                              "\n  //x\n  // y\n"};
        for (size_t number = below(3); number != 0; --number) {
            oneOf(kGaps);
        }
    }

    void value(size_t depth)
    {
        constexpr std::string_view kScalars[] = {"0",
                                                 "-0",
                                                 "7",
                                                 "-12",
                                                 "1234567",
                                                 "12345678",
                                                 "18446744073709551615",
                                                 "0.5",
                                                 "-1.25e2",
                                                 "3.14159265358979323846",
                                                 "1E-7",
                                                 "1e999",
                                                 "true",
                                                 "false",
                                                 "null",
                                                 "\"\"",
                                                 "\"a, [b] {c}: // d\"",
                                                 "\"\\\"\\\\\\u00e4\\n\"",
                                                 "\"\\ud834\\udd1e \xE2\x82\xAC\"",
                                                 "\"cut\\u0000here\""};
        constexpr std::string_view kKeys[] = {"\"a\"",        "\"b\"", "\"\"", "\"\\u0061\"", "\"key \xC3\xA4\"",
                                              "\"c\\u0000d\""};
        const size_t kind = depth < 6 ? below(depth == 0 ? 3 : 5) : 4;
        if (kind > 2) {
            oneOf(kScalars);
            return;
        }
        text_ += kind == 0 ? '[' : '{';
        gap();
        for (size_t left = below(5); left != 0; --left) {
            if (kind != 0) {
                oneOf(kKeys);
                gap();
                text_ += ':';
                gap();
            }
            value(depth + 1);
            gap();
            if (left != 1) {
                text_ += ',';
                gap();
            }
        }
        text_ += kind == 0 ? ']' : '}';
    }

    std::mt19937& random_;
    std::string text_;
};

} // namespace

TEST_F(Walks, TellTheTreeThatTheReaderMakesAndItsFirstFault)
{
    const std::string sample = content("imx477.json");
    ASSERT_GT(sample.size(), 400000U);
    EXPECT_EQ(compare(sample), 0);
    EXPECT_EQ(compare(""), 7);
    EXPECT_EQ(compare(std::string(512, '[') + std::string(512, ']')), 0);
    EXPECT_EQ(compare(std::string(513, '[') + std::string(513, ']')), 7);
    std::mt19937 random(565);
    Generator generator(random);
    int accepted = 0;
    int refused = 0;
    for (int turn = 0; turn < 4000 && !HasFailure(); ++turn) {
        const std::string text = generator.make();
        (compare(turn % 4 == 0 ? text : mutate(text, random)) == 0 ? accepted : refused) += 1;
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
    QvJsonReaderHandle_t reader = 0;
    EXPECT_EQ(QvJsonReader_open(&reader), 0);
    EXPECT_EQ(QvJsonReader_walk(reader, text.data(), text.data() + text.size(), visit, &faults), 7);
    QvJsonReader_close(&reader);
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

} // namespace

TEST(Walk, TellsAllFaultsAndNoneThatComesOfAnother)
{
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
    };
    for (const std::string_view text : kTexts) {
        EXPECT_EQ(marked(unmarked(text)), text);
    }
}
