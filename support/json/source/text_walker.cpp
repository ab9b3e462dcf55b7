#include "text_walker.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "number_text.h"
#include "text_signs.h"
#include "value_tree.h"
#include <qv_common_c/common_error.h>

namespace qv::json {

namespace {

bool isOnLine(const char* pFrom, const char* pTo)
{
    return std::find(pFrom, pTo, '\n') == pTo;
}

} // namespace

TextWalker::TextWalker(const char* pBegin, const char* pEnd, QvJsonWalkVisit_t pVisit, void* pUserData)
    : pBegin_(pBegin), pEnd_(pEnd), pVisit_(pVisit), pUserData_(pUserData), pLine_(pBegin), pFirst_(pBegin),
      pNoText_(pBegin)
{
}

int TextWalker::walk()
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    const char* p = pBegin_;
    if (std::string_view(p, static_cast<std::size_t>(pEnd_ - p)).starts_with(kByteOrderMark)) {
        p += kByteOrderMark.size();
        pLine_ = p;
    }
    while (p != nullptr) {
        p = skip(p);
        if (p != nullptr) {
            p = p != pEnd_ ? step(p) : failEnd();
        }
    }
    return status_ == 0 && isFaulty_ ? static_cast<int>(QvCommonError_Syntax) : status_;
}

const char* TextWalker::step(const char* p)
{
    switch (state_) {
    case State::FirstItem:
        return *p == ']' ? close(p) : readValue(p);
    case State::FirstKey:
        return *p == '}' ? close(p) : readKey(p);
    case State::Key:
        return readKey(p);
    case State::Colon:
        if (*p == ':') {
            return goOn(p + 1, State::MemberValue);
        }
        if (startsValue(p, pEnd_)) {
            return tell(p, p, expected(), innermost()) ? goOn(p, State::MemberValue) : nullptr;
        }
        return fail(p, expected());
    case State::Behind:
        return readBehind(p);
    default:
        return readValue(p);
    }
}

const char* TextWalker::goOn(const char* p, State state)
{
    state_ = state;
    return p;
}

const char* TextWalker::expected() const
{
    switch (state_) {
    case State::FirstKey:
        return "a key or '}'";
    case State::Key:
        return "a key";
    case State::Colon:
        return "':'";
    case State::Behind:
        if (frames_.empty()) {
            return "the end of the text";
        }
        return frames_.back().isObject ? "',' or '}'" : "',' or ']'";
    default:
        return "a value";
    }
}

// Events

inline void TextWalker::prepare(QvJsonWalkKind_t kind, const char* pFrom, const char* pTo)
{
    event_ = {};
    event_.kind = kind;
    event_.depth = frames_.size();
    event_.index = frames_.empty() ? 0 : frames_.back().index;
    event_.begin = offset(pFrom);
    event_.end = offset(pTo);
    event_.opened = kNone;
    event_.suspect = kNone;
}

inline bool TextWalker::deliver()
{
    status_ = pVisit_(pUserData_, &event_);
    return status_ == 0;
}

/// Keeps the inside of a text in quotes for the event.
void TextWalker::decode(const char* p, const StringScan& scan)
{
    const std::string_view inside(p, static_cast<std::size_t>(scan.pQuote - p));
    if (scan.hasEscape) {
        text_.resize(inside.size());
        text_.resize(resolveEscapes(inside, text_.data()));
    } else {
        text_.assign(inside);
    }
    event_.pText = text_.c_str();
    event_.length = text_.size();
}

bool TextWalker::tell(const char* pFrom, const char* pTo, const char* pExpected, const char* pOpened,
                      const char* pSuspect)
{
    isFaulty_ = true;
    pTold_ = pFrom;
    text_.assign("expected ").append(pExpected);
    prepare(QvJsonWalkKind_Fault, pFrom, pTo);
    event_.index = 0;
    event_.pText = text_.c_str();
    event_.length = text_.size();
    event_.opened = pOpened != nullptr ? offset(pOpened) : kNone;
    event_.suspect = pSuspect != nullptr ? offset(pSuspect) : kNone;
    return deliver();
}

bool TextWalker::endContainer(const char* pFrom, const char* pTo)
{
    const Frame frame = frames_.back();
    frames_.pop_back();
    prepare(frame.isObject ? QvJsonWalkKind_ObjectEnd : QvJsonWalkKind_ArrayEnd, pFrom, pTo);
    event_.type = frame.isObject ? QvJsonValueType_Object : QvJsonValueType_Array;
    event_.opened = offset(frame.pOpened);
    state_ = State::Behind;
    return deliver();
}

// Blanks and comments

/// Lines may end within a comment.
void TextWalker::noteLines(const char* pFrom, const char* pTo)
{
    const std::string_view text(pFrom, static_cast<std::size_t>(pTo - pFrom));
    if (const std::size_t place = text.rfind('\n'); place != std::string_view::npos) {
        pLine_ = pFrom + place + 1;
        pFirst_ = std::find_if_not(pLine_, pTo, isBlank);
    }
}

inline const char* TextWalker::skip(const char* p)
{
    const char* pNext = blanksEnd(p);
    if (pNext != pEnd_ && *pNext == '/') [[unlikely]] {
        return skipComments(pNext, p);
    }
    return pNext;
}

const char* TextWalker::skipComments(const char* p, const char* pGap)
{
    const bool isBehindComma = state_ == State::Item || state_ == State::Key;
    const bool isBehindValue = state_ == State::Behind || isBehindComma;
    bool isOnFirstLine = isOnLine(pGap, p);
    while (p != nullptr && p != pEnd_ && *p == '/') {
        const CommentScan scan = scanComment(p, pEnd_);
        if (scan.pNext == nullptr) {
            p = failComment(p, scan);
            p = p != nullptr ? blanksEnd(p) : nullptr;
            continue;
        }
        noteLines(p, scan.pNext);
        const char* pNext = blanksEnd(scan.pNext);
        prepare(QvJsonWalkKind_Comment, p, scan.pNext);
        event_.index = 0;
        event_.pText = scan.text.c_str();
        event_.length = scan.text.size();
        // Behind the comma and before another value on the same line: it belongs to that one.
        const bool isBefore = isBehindComma && pNext != pEnd_ && *pNext != '/' && isOnLine(scan.pNext, pNext);
        event_.isBehind = isBehindValue && isOnFirstLine && !isBefore;
        isOnFirstLine = isOnFirstLine && isOnLine(p, pNext);
        p = deliver() ? pNext : nullptr;
    }
    return p;
}

// Values

const char* TextWalker::readValue(const char* p)
{
    if (startsNumber(*p)) {
        return readNumbers(p);
    }
    switch (*p) {
    case '"':
        return readString(p);
    case '[':
    case '{':
        return open(p);
    default:
        return readWord(p);
    }
}

/// The number at p, and those that follow it in a list.
const char* TextWalker::readNumbers(const char* p)
{
    const bool isInList = !frames_.empty() && !frames_.back().isObject;
    prepare(QvJsonWalkKind_Value, p, p);
    for (;;) {
        const char* pNext = pEnd_ - p >= kShortReach ? readShortNumber(p, &event_.value) : nullptr;
        if (pNext == nullptr) {
            const char* pError = nullptr;
            pNext = readNumber(p, pEnd_, &event_.value, &pError);
            if (pNext == nullptr) {
                return fail(pError, "a digit");
            }
        }
        event_.type = event_.value.type;
        event_.end = offset(pNext);
        if (!deliver()) {
            return nullptr;
        }
        if (!isInList || pEnd_ - pNext < 3 || std::memcmp(pNext, ", ", 2) != 0 || !startsNumber(pNext[2])) {
            return goOn(pNext, State::Behind);
        }
        p = pNext + 2;
        state_ = State::Item;
        event_.index = ++frames_.back().index;
        event_.begin = offset(p);
    }
}

const char* TextWalker::readWord(const char* p)
{
    const std::size_t length = wordLength(p, pEnd_);
    if (length == 0) {
        return fail(p, "a value");
    }
    prepare(QvJsonWalkKind_Value, p, p + length);
    if (*p != 'n') {
        event_.type = QvJsonValueType_Boolean;
        event_.value.type = QvJsonValueType_Boolean;
        event_.value.holder._bool = *p == 't';
    }
    return deliver() ? goOn(p + length, State::Behind) : nullptr;
}

const char* TextWalker::readString(const char* p)
{
    const StringScan scan = scanString(p + 1, pEnd_);
    if (scan.pQuote == nullptr) {
        return failText(p, scan);
    }
    if (state_ == State::Item && isLackingEnd(p)) {
        // The fault stands where the reader finds it, at the colon; then the member is read as one.
        state_ = State::Behind;
        return failOpen(p, std::find(scan.pQuote, pEnd_, ':'));
    }
    prepare(QvJsonWalkKind_Value, p, scan.pQuote + 1);
    decode(p + 1, scan);
    event_.type = QvJsonValueType_String;
    event_.value.type = QvJsonValueType_String;
    event_.value.holder.pChar = text_.data();
    return deliver() ? goOn(scan.pQuote + 1, State::Behind) : nullptr;
}

const char* TextWalker::readKey(const char* p)
{
    if (*p == '{' && state_ == State::Key && isLackingEnd(p)) {
        return failOpen(p, p);
    }
    if (*p != '"') {
        return fail(p, expected());
    }
    const StringScan scan = scanString(p + 1, pEnd_);
    if (scan.pQuote == nullptr) {
        return failText(p, scan);
    }
    judgeKey(p);
    prepare(QvJsonWalkKind_Key, p, scan.pQuote + 1);
    decode(p + 1, scan);
    return deliver() ? goOn(scan.pQuote + 1, State::Colon) : nullptr;
}

// Containers

const char* TextWalker::open(const char* p)
{
    if (frames_.size() == kMaximumDepth) {
        return fail(p, "at most 512 nested objects and arrays");
    }
    const bool isObject = *p == '{';
    prepare(isObject ? QvJsonWalkKind_ObjectBegin : QvJsonWalkKind_ArrayBegin, p, p + 1);
    event_.type = isObject ? QvJsonValueType_Object : QvJsonValueType_Array;
    frames_.push_back({p, pLine_, indent(), kNone, 0, isObject});
    return deliver() ? goOn(p + 1, isObject ? State::FirstKey : State::FirstItem) : nullptr;
}

const char* TextWalker::close(const char* p)
{
    judgeEnd(p, frames_.back());
    pNewestEnd_ = p;
    return endContainer(p, p + 1) ? p + 1 : nullptr;
}

const char* TextWalker::readBehind(const char* p)
{
    if (frames_.empty()) {
        // Whatever follows: there is no saying what it would belong to.
        tell(p, pEnd_, expected(), nullptr, pSurplus_);
        return nullptr;
    }
    Frame& frame = frames_.back();
    if (*p == ',') {
        ++frame.index;
        return goOn(p + 1, frame.isObject ? State::Key : State::Item);
    }
    if (isEndBracket(*p)) {
        return frame.isObject == (*p == '}') ? close(p) : failBracket(p);
    }
    // Where a comma is missing, or the end of the container.
    if (isLackingEnd(p)) {
        return failOpen(p, p);
    }
    const bool isNext =
        frame.isObject ? *p == '"' : *p == '"' || *p == '[' || *p == '{' || (isBlank(p[-1]) && startsValue(p, pEnd_));
    if (isNext) {
        if (!tell(p, p, expected(), frame.pOpened)) {
            return nullptr;
        }
        ++frame.index;
        return goOn(p, frame.isObject ? State::Key : State::Item);
    }
    const bool isBehindText = event_.kind == QvJsonWalkKind_Value && event_.type == QvJsonValueType_String;
    if (*p == ':' && isBehindText) {
        return failMember(p);
    }
    return fail(p, expected());
}

} // namespace qv::json
