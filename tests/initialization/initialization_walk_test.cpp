#include <gtest/gtest.h>

#include <random>

#include "common/files.h"
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
            EXPECT_TRUE(!fault.empty() || (token.front() == '[' && token.back() == ']')) << text_;
            sections_.push_back({content});
            pMember_ = nullptr;
            giveTo(sections_.back());
            break;
        default:
            expectSame(token, content);
            Member member{content};
            if (event.pValue != nullptr) {
                member.value = std::string(event.pValue, event.valueLength);
                expectSame(value, *member.value);
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
    void expectSame(std::string_view token, const std::string& content) const
    {
        EXPECT_TRUE(token == content || (token.size() >= 2 && token.front() == '"' && token.back() == '"')) << text_;
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

// And what was read is written and read the same.
TEST(InitializationWalk, TellsTheSectionsThatTheReaderMakesAndItsFirstFault)
{
    const std::string_view lines[] = {"\r\n",    "[a]\n", "[\"b]\" ] ; c\n", "k = v\n", "k\n", "\"k\" = \" v \" # c\n",
                                      "; note\n"};
    const std::string sample = qv::test::readFile(QV_SOURCE_DIR "/examples/documents/imx477.ini");
    ASSERT_GT(sample.size(), 100u);
    std::mt19937 random(477);
    int accepted = 0;
    int refused = 0;
    for (int turn = 0; turn < 8000 && !testing::Test::HasFailure(); ++turn) {
        std::string text = turn == 0 ? sample : "";
        for (size_t left = turn == 0 ? 0 : random() % 16; left != 0; --left) {
            switch (random() % 16) {
            case 0: // any byte at all
                text += static_cast<char>(random() % 64 == 0 ? 0 : random());
                break;
            case 1:
            case 2:
            case 3:
                text += lines[random() % std::size(lines)];
                break;
            default:
                text += kPieces[random() % kPieces.size()];
                break;
            }
        }
        const ReadResult read = readText(text);
        const Walked walked = walk(text);
        ASSERT_EQ(walked.status, read.status) << text;
        if (read.status == 0) {
            EXPECT_EQ(walked.fault, "") << text;
            EXPECT_EQ(show(walked.sections), show(read.sections)) << text;
            const std::string written = writeText(read.sections);
            const ReadResult again = readText(written);
            ASSERT_EQ(again.sections, read.sections) << text << "\n---\n" << written;
            ASSERT_EQ(writeText(again.sections), written);
        } else {
            ASSERT_EQ(read.traces.size(), 1u);
            EXPECT_TRUE(read.traces[0].ends_with(": " + walked.fault)) << read.traces[0] << "\n" << walked.fault;
        }
        (read.status == 0 ? accepted : refused) += 1;
    }
    EXPECT_GT(accepted, 2000);
    EXPECT_GT(refused, 2000);
}

TEST(InitializationWalk, EndsWithTheStatusOfItsVisitor)
{
    const std::string_view text = "; a\n[b] ; c\nd = \"e\" ; f\n[\n = g\nh";
    QvInitializationReaderHandle_t hReader = 0;
    ASSERT_EQ(QvInitializationReader_open(&hReader), 0);
    const auto visit = [](void* pLeft, const QvInitializationWalkEvent_t*) {
        return --*static_cast<int*>(pLeft) == 0 ? 99 : 0;
    };
    int uncounted = 0;
    EXPECT_EQ(QvInitializationReader_walk(hReader, text.data(), text.data() + text.size(), visit, &uncounted), 7);
    EXPECT_LE(uncounted, -8); // all kinds of events, each of which may be the last
    for (int number = 1; number <= -uncounted; ++number) {
        int left = number;
        EXPECT_EQ(QvInitializationReader_walk(hReader, text.data(), text.data() + text.size(), visit, &left), 99);
        EXPECT_EQ(left, 0);
    }
    const char* const pEnd = text.data() + 1;
    EXPECT_EQ(QvInitializationReader_walk(hReader, nullptr, nullptr, visit, nullptr), 0);
    EXPECT_EQ(QvInitializationReader_walk(0, text.data(), pEnd, visit, nullptr), 13);
    EXPECT_EQ(QvInitializationReader_walk(hReader, nullptr, pEnd, visit, nullptr), 13);
    EXPECT_EQ(QvInitializationReader_walk(hReader, pEnd, text.data(), visit, nullptr), 13);
    EXPECT_EQ(QvInitializationReader_walk(hReader, text.data(), pEnd, nullptr, nullptr), 13);
    EXPECT_EQ(QvInitializationReader_close(&hReader), 0);
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
