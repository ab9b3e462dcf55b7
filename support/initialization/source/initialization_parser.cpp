#include "initialization_parser.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "initialization_quote.h"

namespace qv::initialization {

std::vector<SectionPointer> Parser::parse(std::string_view text)
{
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    while (!text.empty()) {
        std::size_t length = 0;
        while (length < text.size() && text[length] != '\n' && text[length] != '\r') {
            length++;
        }
        line_ = text.substr(0, length);
        lineNumber_++;
        text.remove_prefix(length);
        if (!text.empty()) {
            text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
        }
        parseLine();
    }
    if (!comments_.empty()) {
        moveCommentsTo(currentSection());
    }
    return std::move(sections_);
}

void Parser::parseLine()
{
    const std::size_t zero = line_.find('\0');
    if (zero != std::string_view::npos) {
        fail("text, not a zero byte", line_.data() + zero);
    }
    const std::string_view text = trim(line_);
    if (text.empty()) {
        return;
    }
    if (isEndOrComment(text)) {
        addComment(text);
    } else if (text.front() == '[') {
        parseHeader(text);
    } else {
        parseMember(text);
    }
}

void Parser::parseHeader(std::string_view text)
{
    const std::string_view content = trimLeft(text.substr(1));
    std::string header;
    std::string_view rest;
    const auto quoted = unquote(content);
    if (quoted && quoted->rest.starts_with(']')) {
        header = quoted->text;
        rest = trimLeft(quoted->rest.substr(1));
    } else {
        const std::size_t bracket = content.find(']');
        if (bracket == std::string_view::npos) {
            fail("']'", text.data() + text.size());
        }
        header = trim(content.substr(0, bracket));
        rest = trimLeft(content.substr(bracket + 1));
    }
    if (!isEndOrComment(rest)) {
        fail("the end of the line", rest.data());
    }
    addComment(rest);

    sections_.push_back(makeSection());
    sections_.back()->pHeader = copyOf(header).release();
    moveCommentsTo(*sections_.back());
}

void Parser::parseMember(std::string_view text)
{
    const auto quoted = unquote(text);
    if (quoted && (isEndOrComment(quoted->rest) || quoted->rest.starts_with('='))) {
        addMember(quoted->text, quoted->rest);
        return;
    }
    const std::size_t equals = std::min(text.find('='), text.size());
    if (equals == 0) {
        fail("a key", text.data());
    }
    addMember(trim(text.substr(0, equals)), text.substr(equals));
}

/// `rest` is what follows the key on its line: nothing, a comment, or '=' with the value.
void Parser::addMember(std::string_view key, std::string_view rest)
{
    MemberPointer pMember = makeMember();
    pMember->pKey = copyOf(key).release();
    if (rest.starts_with('=')) {
        const std::string_view value = trimLeft(rest.substr(1));
        const auto quoted = unquote(value);
        if (quoted && isEndOrComment(quoted->rest)) {
            pMember->pValue = copyOf(quoted->text).release();
            addComment(quoted->rest);
        } else {
            pMember->pValue = copyOf(value).release();
        }
    } else {
        addComment(rest);
    }
    if (!comments_.empty()) {
        std::string joined(comments_.front());
        for (std::size_t i = 1; i < comments_.size(); i++) {
            joined += '\n';
            joined += comments_[i];
        }
        pMember->pComment = copyOf(joined).release();
        comments_.clear();
    }
    pushBack(currentSection().hMember, std::move(pMember));
}

/// Keeps a comment, which begins with its mark, until it is known what it belongs to.
void Parser::addComment(std::string_view rest)
{
    if (!rest.empty()) {
        comments_.push_back(trim(rest.substr(1)));
    }
}

void Parser::moveCommentsTo(QvInitializationSection_t& section)
{
    for (const std::string_view comment : comments_) {
        pushBack(section.hComment, copyOf(comment));
    }
    comments_.clear();
}

/// The section that the line at hand belongs to; one without a header in front of the first.
QvInitializationSection_t& Parser::currentSection()
{
    if (sections_.empty()) {
        sections_.push_back(makeSection());
    }
    return *sections_.back();
}

void Parser::fail(const char* pExpected, const char* pPlace) const
{
    throw SyntaxError{pExpected, lineNumber_, static_cast<std::size_t>(pPlace - line_.data()) + 1};
}

} // namespace qv::initialization
