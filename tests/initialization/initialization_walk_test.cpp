#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>

#include "initialization_document.h"

namespace {

// Builds the sections that a walk tells, and holds the walk to what it says of its events.
class Builder {
public:
    explicit Builder(std::string_view text) : text_(text) {}

    static int visit(void* pUserData, const QvInitializationWalkEvent_t* pEvent)
    {
        static_cast<Builder*>(pUserData)->take(*pEvent);
        return 0;
    }

    // Comments at the end go to the last section.
    std::vector<Section> finish()
    {
        if (!waiting_.empty()) {
            giveTo(current());
        }
        return sections_;
    }

    std::string fault;  // the first one, as the reader traces it
    std::string marked; // a line for each, with a caret under its place

private:
    void take(const QvInitializationWalkEvent_t& event)
    {
        ASSERT_LE(event.begin, event.end) << text_;
        ASSERT_LE(event.end, event.valueBegin) << text_;
        ASSERT_LE(event.valueBegin, event.valueEnd) << text_;
        ASSERT_LE(event.valueEnd, text_.size()) << text_;
        const std::string content(event.pText, event.length);
        const std::string_view token = text_.substr(event.begin, event.end - event.begin);
        const std::string_view value = text_.substr(event.valueBegin, event.valueEnd - event.valueBegin);
        switch (event.kind) {
        case QvInitializationWalkKind_Fault:
            if (fault.empty()) {
                fault = content + " at line " + std::to_string(event.line) + ", column " + std::to_string(event.column);
            }
            marked += std::to_string(event.line) + std::string(event.column, ' ') + "^ " + content + "\n";
            break;
        case QvInitializationWalkKind_Comment:
            EXPECT_TRUE(token.front() == ';' || token.front() == '#') << text_;
            waiting_.push_back(content);
            if (event.isBehind) {
                giveBack();
            }
            break;
        case QvInitializationWalkKind_Section:
            expectSame(token, content, "[]");
            sections_.push_back({content});
            pMember_ = nullptr;
            giveTo(sections_.back());
            break;
        default:
            expectSame(token, content, "");
            Member member{content};
            if (event.pValue != nullptr) {
                member.value = std::string(event.pValue, event.valueLength);
                expectSame(value, *member.value, "");
            }
            for (const std::string& comment : waiting_) {
                member.comment = member.comment ? *member.comment + "\n" + comment : comment;
            }
            waiting_.clear();
            current().members.push_back(member);
            pMember_ = &current().members.back();
            break;
        }
    }

    // What is decoded stands at its place: as it is, or in quotes.
    void expectSame(std::string_view token, const std::string& content, std::string_view around) const
    {
        if (around.empty()) {
            EXPECT_TRUE(token == content || (token.size() >= 2 && token.front() == '"' && token.back() == '"'))
                << text_;
        } else if (fault.empty()) {
            EXPECT_TRUE(token.front() == around.front() && token.back() == around.back()) << text_;
        }
    }

    // A comment behind something on its line is that one's.
    void giveBack()
    {
        if (pMember_ == nullptr) {
            giveTo(current());
            return;
        }
        pMember_->comment = (pMember_->comment ? *pMember_->comment + "\n" : "") + waiting_.back();
        waiting_.clear();
    }

    void giveTo(Section& section)
    {
        section.comments.insert(section.comments.end(), waiting_.begin(), waiting_.end());
        waiting_.clear();
    }

    Section& current()
    {
        if (sections_.empty()) {
            sections_.push_back({});
        }
        return sections_.back();
    }

    std::string_view text_;
    std::vector<Section> sections_;
    std::vector<std::string> waiting_;
    Member* pMember_ = nullptr;
};

struct Walked {
    int status;
    std::vector<Section> sections;
    std::string fault;
    std::string marked;
};

Walked walk(std::string_view text)
{
    const std::vector<char> copy(text.begin(), text.end());
    QvInitializationReaderHandle_t hReader = 0;
    EXPECT_EQ(QvInitializationReader_open(&hReader), 0);
    Builder builder({copy.data(), copy.size()});
    const int status =
        QvInitializationReader_walk(hReader, copy.data(), copy.data() + copy.size(), Builder::visit, &builder);
    EXPECT_EQ(QvInitializationReader_close(&hReader), 0);
    return {status, builder.finish(), builder.fault, builder.marked};
}

TEST(InitializationWalk, TellsTheSectionsThatTheReaderMakesAndItsFirstFault)
{
    std::ifstream file(QV_SOURCE_DIR "/examples/documents/imx477.ini", std::ios::binary);
    std::ostringstream sample;
    sample << file.rdbuf();
    ASSERT_GT(sample.str().size(), 100u);
    constexpr std::string_view kPieces[] = {
        "[",
        "]",
        "a",
        "b",
        "=",
        "=",
        "\"",
        "\"",
        "\\",
        "\\x41",
        ";",
        "#",
        " ",
        "\t",
        "\n",
        "\n",
        "\r\n",
        "\r",
        "\xC3\xA4",
        "\x01",
        "[a]\n",
        "[\"b]\" ] ; c\n",
        "k = v\n",
        "k\n",
        "k =",
        "\"k\" = \" v \" # c\n",
        "; note\n",
        "\xEF\xBB\xBF",
        std::string_view("\0", 1),
    };
    std::mt19937 random(477);
    int accepted = 0;
    int refused = 0;
    for (int turn = 0; turn < 8000 && !testing::Test::HasFailure(); ++turn) {
        std::string text = turn == 0 ? sample.str() : "";
        for (size_t left = turn == 0 ? 0 : random() % 12; left != 0; --left) {
            text += kPieces[random() % (std::size(kPieces) - (random() % 8 == 0 ? 0 : 1))];
        }
        const ReadResult read = readText(text);
        const Walked walked = walk(text);
        ASSERT_EQ(walked.status, read.status) << text;
        if (read.status == 0) {
            EXPECT_EQ(walked.fault, "") << text;
            EXPECT_EQ(show(walked.sections), show(read.sections)) << text;
        } else {
            ASSERT_EQ(read.traces.size(), 1u);
            EXPECT_TRUE(read.traces[0].ends_with(": " + walked.fault)) << read.traces[0] << "\n" << walked.fault;
        }
        (read.status == 0 ? accepted : refused) += 1;
    }
    EXPECT_GT(accepted, 2000);
    EXPECT_GT(refused, 2000);
}

TEST(InitializationWalk, GoesOnBehindEachFault)
{
    using namespace std::string_literals;
    const Walked walked = walk("[a] x ; c\nk = 1\n  = 2\n[ b \nm = \0\nn = 3"s);
    EXPECT_EQ(walked.status, 7);
    EXPECT_EQ(show(walked.sections), "['a'] 'k'='1'\n['b'] 'n'='3'\n");
    EXPECT_EQ(walked.marked, "1     ^ expected the end of the line\n"
                             "3   ^ expected a key\n"
                             "4    ^ expected ']'\n"
                             "5     ^ expected text, not a zero byte\n");
}

} // namespace
