#include <qv_initialization/initialization_walk.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "initialization_quote.h"
#include "initialization_record.h"

namespace {

using namespace qv::initialization;

/// One pass over one text that tells what stands where. The syntax is that of the parser, which keeps no places and ends
/// with the first fault.
class Walk {
public:
    Walk(std::string_view text, QvInitializationWalkVisit_t pVisit, void* pUserData)
        : text_(text), pVisit_(pVisit), pUserData_(pUserData)
    {
    }

    int run();

private:
    void readLine();
    void readHeader(std::string_view text);
    void readMember(std::string_view text);
    void tellSection(std::string_view span, std::string_view name);
    void tellMember(std::string_view span, std::string_view key, std::string_view rest);
    void tellComment(std::string_view rest, bool isBehind);
    void fail(const char* pExpected, const char* pPlace);
    void prepare(QvInitializationWalkKind_t kind, std::string_view span, std::string_view text);
    void deliver();

    std::size_t offset(const char* p) const { return static_cast<std::size_t>(p - text_.data()); }

    std::string_view text_;
    QvInitializationWalkVisit_t pVisit_;
    void* pUserData_;
    std::string_view line_; // the line at hand without its end
    std::size_t lineNumber_ = 0;
    bool isFaulty_ = false;
    QvInitializationWalkEvent_t event_ = {};
    std::string content_; // at which the event points
    std::string value_;
};

std::string_view between(const char* pFrom, const char* pTo)
{
    return {pFrom, static_cast<std::size_t>(pTo - pFrom)};
}

int Walk::run()
{
    std::string_view rest = text_;
    if (rest.starts_with(kByteOrderMark)) {
        rest.remove_prefix(kByteOrderMark.size());
    }
    while (!rest.empty()) {
        line_ = rest.substr(0, rest.find_first_of("\r\n"));
        ++lineNumber_;
        rest.remove_prefix(line_.size());
        if (!rest.empty()) {
            rest.remove_prefix(rest.starts_with("\r\n") ? 2 : 1);
        }
        readLine();
    }
    return isFaulty_ ? QvCommonError_Syntax : QvCommonError_Success;
}

void Walk::readLine()
{
    const std::size_t zero = line_.find('\0');
    if (zero != std::string_view::npos) {
        fail("text, not a zero byte", line_.data() + zero);
        return;
    }
    const std::string_view text = trim(line_);
    if (text.empty()) {
        return;
    }
    if (isEndOrComment(text)) {
        tellComment(text, false);
    } else if (text.front() == '[') {
        readHeader(text);
    } else {
        readMember(text);
    }
}

void Walk::readHeader(std::string_view text)
{
    const std::string_view content = trimLeft(text.substr(1));
    const auto quoted = unquote(content);
    const char* pBracket = nullptr;
    std::string name;
    if (quoted && quoted->rest.starts_with(']')) {
        name = quoted->text;
        pBracket = quoted->rest.data();
    } else {
        const std::size_t length = std::min(content.find(']'), content.size());
        name = trim(content.substr(0, length));
        pBracket = length != content.size() ? content.data() + length : nullptr;
    }
    if (pBracket == nullptr) {
        fail("']'", text.data() + text.size());
        tellSection(text, name);
        return;
    }
    const std::string_view rest = trimLeft(between(pBracket + 1, text.data() + text.size()));
    if (!isEndOrComment(rest)) {
        fail("the end of the line", rest.data());
    }
    tellSection(between(text.data(), pBracket + 1), name);
    if (isEndOrComment(rest)) {
        tellComment(rest, true);
    }
}

void Walk::readMember(std::string_view text)
{
    const auto quoted = unquote(text);
    if (quoted && (isEndOrComment(quoted->rest) || quoted->rest.starts_with('='))) {
        const char* pRest = quoted->rest.data();
        tellMember(text.substr(0, text.rfind('"', static_cast<std::size_t>(pRest - text.data()) - 1) + 1), quoted->text,
                   quoted->rest);
        return;
    }
    const std::size_t equals = std::min(text.find('='), text.size());
    if (equals == 0) {
        fail("a key", text.data());
        return;
    }
    const std::string_view key = trim(text.substr(0, equals));
    tellMember(key, key, text.substr(equals));
}

/// `rest` is what follows the key on its line: nothing, a comment, or '=' with the value.
void Walk::tellMember(std::string_view span, std::string_view key, std::string_view rest)
{
    prepare(QvInitializationWalkKind_Member, span, key);
    if (!rest.starts_with('=')) {
        deliver();
        tellComment(rest, true);
        return;
    }
    const std::string_view value = trimLeft(rest.substr(1));
    const auto quoted = unquote(value);
    const bool isQuoted = quoted && isEndOrComment(quoted->rest);
    const std::string_view comment = isQuoted ? quoted->rest : std::string_view();
    value_ = isQuoted ? quoted->text : std::string(value);
    event_.pValue = value_.c_str();
    event_.valueLength = value_.size();
    event_.valueBegin = offset(value.data());
    event_.valueEnd = event_.valueBegin + trim(value.substr(0, value.size() - comment.size())).size();
    deliver();
    tellComment(comment, true);
}

void Walk::tellSection(std::string_view span, std::string_view name)
{
    prepare(QvInitializationWalkKind_Section, span, name);
    deliver();
}

void Walk::tellComment(std::string_view rest, bool isBehind)
{
    if (!rest.empty()) {
        prepare(QvInitializationWalkKind_Comment, rest, trim(rest.substr(1)));
        event_.isBehind = isBehind;
        deliver();
    }
}

void Walk::fail(const char* pExpected, const char* pPlace)
{
    isFaulty_ = true;
    prepare(QvInitializationWalkKind_Fault, between(pPlace, line_.data() + line_.size()),
            std::string("expected ") + pExpected);
    deliver();
}

void Walk::prepare(QvInitializationWalkKind_t kind, std::string_view span, std::string_view text)
{
    content_ = text;
    event_ = {};
    event_.kind = kind;
    event_.line = lineNumber_;
    event_.column = static_cast<std::size_t>(span.data() - line_.data()) + 1;
    event_.begin = offset(span.data());
    event_.end = event_.begin + span.size();
    event_.valueBegin = event_.end;
    event_.valueEnd = event_.end;
    event_.pText = content_.c_str();
    event_.length = content_.size();
}

void Walk::deliver()
{
    throwUnlessSuccess(pVisit_(pUserData_, &event_));
}

} // namespace

int QvInitializationReader_walk(QvInitializationReaderHandle_t hReader, const char* pBegin, const char* pEnd,
                                QvInitializationWalkVisit_t pVisit, void* pUserData)
{
    if (hReader == 0 || (pBegin == nullptr) != (pEnd == nullptr) || pEnd < pBegin || pVisit == nullptr) {
        return QvCommonError_BadArgument;
    }
    return statusOf([=] { throwUnlessSuccess(Walk(between(pBegin, pEnd), pVisit, pUserData).run()); });
}
