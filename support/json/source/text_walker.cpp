#include "text_walker.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "number_text.h"
#include "value_tree.h"
#include <qv_common_c/common_error.h>

namespace qv::json {

namespace {

constexpr auto kNone = QV_JSON_WALK_NONE;

bool startsNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '-';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isEndBracket(char c)
{
    return c == ']' || c == '}';
}

bool isOnLine(const char* pFrom, const char* pTo)
{
    return std::find(pFrom, pTo, '\n') == pTo;
}

const char* lineEnd(const char* p, const char* pEnd)
{
    return std::find(p, pEnd, '\n');
}

/// The words of the language that begin at p: length 0 if none does.
std::size_t wordLength(const char* p, const char* pEnd)
{
    const std::string_view rest(p, static_cast<std::size_t>(pEnd - p));
    for (const std::string_view word : {"true", "false", "null"}) {
        if (rest.starts_with(word)) {
            return word.size();
        }
    }
    return 0;
}

bool startsValue(const char* p, const char* pEnd)
{
    return *p == '"' || *p == '[' || *p == '{' || startsNumber(*p) || wordLength(p, pEnd) != 0;
}

/// The quote that closes a text whose inside is broken, on the line of p; else the end of that line.
const char* closingQuote(const char* p, const char* pEnd)
{
    while (p != pEnd && *p != '"' && *p != '\n') {
        p += *p == '\\' && p + 1 != pEnd && p[1] != '\n' ? 2 : 1;
    }
    return p;
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

inline const char* TextWalker::blanksEnd(const char* p)
{
    bool isFirst = p == pLine_;
    while (p != pEnd_ && isBlank(*p)) {
        if (*p == '\n') {
            pLine_ = p + 1;
            isFirst = true;
        }
        ++p;
    }
    if (isFirst) {
        pFirst_ = p;
    }
    return p;
}

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
        event_.isBehind = isBehindValue && isOnFirstLine;
        if (isBehindComma && pNext != pEnd_ && *pNext != '/' && isOnLine(scan.pNext, pNext)) {
            // Behind the comma and before another value on the same line: it belongs to that one.
            event_.isBehind = isEndBracket(*pNext);
        }
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
    for (;;) {
        prepare(QvJsonWalkKind_Value, p, p);
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
        ++frames_.back().index;
        state_ = State::Item;
        p = pNext + 2;
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
        if (!tell(p, p, expected(), innermost(), innermost()) || !endContainer(p, p)) {
            return nullptr;
        }
        ++frames_.back().index;
        return goOn(p, State::Item);
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
    return endContainer(p, p + 1) ? p + 1 : nullptr;
}

const char* TextWalker::readBehind(const char* p)
{
    if (frames_.empty()) {
        // Whatever follows: there is no saying what it would belong to.
        tell(p, pEnd_, expected(), nullptr, surplus_.pBracket);
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
    if ((frame.isObject ? *p == '{' : *p == '"') && isLackingEnd(p)) {
        if (!tell(p, p, expected(), frame.pOpened, frame.pOpened) || !endContainer(p, p)) {
            return nullptr;
        }
        ++frames_.back().index;
        return goOn(p, frames_.back().isObject ? State::Key : State::Item);
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
    // A member of the object around an array that has no end: its key was taken for an item.
    const bool isBehindText = event_.kind == QvJsonWalkKind_Value && event_.type == QvJsonValueType_String;
    if (*p == ':' && !frame.isObject && isBehindText && offset(pFirst_) == event_.begin && isLackingEnd(pFirst_)) {
        const char* pNext = passOver(p);
        return tell(p, pNext, expected(), frame.pOpened, frame.pOpened) && endContainer(pNext, pNext) ? pNext : nullptr;
    }
    return fail(p, expected());
}

// Indentation: the only hint at what a writer had in mind

/// Whether the token begins a line, and no deeper than the line on which the container was opened.
bool TextWalker::isLeftOf(const char* p, const Frame& frame) const
{
    return p == pFirst_ && pLine_ != frame.pLine && indent() <= frame.indent;
}

/// Whether the token at p, which can't stand in the innermost container, looks like one of the container around that.
bool TextWalker::isLackingEnd(const char* p) const
{
    if (frames_.size() < 2 || frames_[frames_.size() - 2].isObject == frames_.back().isObject ||
        !isLeftOf(p, frames_.back())) {
        return false;
    }
    if (frames_.back().isObject || p != pFirst_) {
        return true;
    }
    const StringScan scan = scanString(p + 1, pEnd_);
    if (scan.pQuote == nullptr) {
        return false;
    }
    const char* pNext = std::find_if_not(scan.pQuote + 1, pEnd_, isBlank);
    return pNext != pEnd_ && *pNext == ':';
}

void TextWalker::judgeKey(const char* p)
{
    Frame& frame = frames_.back();
    if (p != pFirst_) {
        return;
    }
    if (frame.keyIndent == kNone) {
        frame.keyIndent = indent();
    } else if (frame.keyIndent > frame.indent && indent() <= frame.indent && missing_.pBracket == nullptr) {
        missing_ = {frame.pOpened, frames_.size() - 1};
    }
}

/// Compares the indentation of a closing bracket that begins a line with that of the line it was opened on.
void TextWalker::judgeEnd(const char* p, const Frame& frame)
{
    if (p != pFirst_) {
        return;
    }
    const std::size_t depth = frames_.size() - 1;
    if (indent() < frame.indent) {
        if (missing_.pBracket == nullptr) {
            missing_ = {frame.pOpened, depth};
        }
    } else if (indent() > frame.indent) {
        // Of several brackets on one line each may have a step of its own.
        const bool isAlone = depth == 0 || frames_[depth - 1].pLine != frame.pLine;
        if (isAlone && surplus_.pBracket == nullptr) {
            surplus_ = {p, depth};
        }
    } else {
        // Where a container further out ends in its place, nothing was wrong within it.
        if (missing_.depth > depth) {
            missing_ = {};
        }
        if (surplus_.depth > depth) {
            surplus_ = {};
        }
    }
}

// Faults

/// Goes on at the next comma or closing bracket of the container.
const char* TextWalker::fail(const char* p, const char* pExpected)
{
    if (frames_.empty()) {
        tell(p, pEnd_, pExpected, nullptr);
        return nullptr;
    }
    if (p != pEnd_ && *p == '#') {
        // Other languages begin a comment with it.
        const char* pNext = lineEnd(p, pEnd_);
        return tell(p, pNext, pExpected, innermost()) ? pNext : nullptr;
    }
    const char* pNext = passOver(p);
    return tell(p, pNext, pExpected, innermost()) ? goOn(pNext, State::Behind) : nullptr;
}

/// A text in quotes at p that is broken. Its end may still be found on its line.
const char* TextWalker::failText(const char* p, const StringScan& scan)
{
    const bool isKey = state_ == State::Key || state_ == State::FirstKey;
    const char* pQuote = closingQuote(scan.pError, pEnd_);
    const char* pNext = pQuote;
    if (frames_.empty()) {
        pNext = pEnd_;
    } else if (pQuote != pEnd_ && *pQuote == '"') {
        pNext = isKey ? passOver(pQuote + 1) : pQuote + 1;
    } else {
        // Without its closing quote a text has swallowed the comma behind it.
        const char* pLast = pQuote;
        while (pLast != p + 1 && isBlank(pLast[-1])) {
            --pLast;
        }
        pNext = pLast != p + 1 && pLast[-1] == ',' ? pLast - 1 : passOver(pQuote);
    }
    if (!tell(scan.pError, std::max(pNext, scan.pError), scan.pExpected, p) || frames_.empty()) {
        return nullptr;
    }
    return goOn(pNext, State::Behind);
}

const char* TextWalker::failComment(const char* p, const CommentScan& scan)
{
    const char* pError = std::min(scan.pError, pEnd_);
    const char* pNext = pEnd_;
    State next = state_;
    if (pError == pEnd_) {
        // It has swallowed everything.
    } else if (p[1] == '/' || (frames_.empty() && p[1] != '*')) {
        pNext = lineEnd(pError, pEnd_);
    } else if (p[1] == '*') {
        pNext = passComment(p);
    } else {
        pNext = passOver(p + 1);
        next = State::Behind;
    }
    return tell(pError, pNext, scan.pExpected, p) ? goOn(pNext, next) : nullptr;
}

/// A closing bracket of the wrong kind: either it is mistyped, or containers before it have none.
const char* TextWalker::failBracket(const char* p)
{
    const bool isBrace = *p == '}';
    const Frame& inner = frames_.back();
    std::size_t partner = frames_.size();
    while (partner != 0 && frames_[partner - 1].isObject != isBrace) {
        --partner;
    }
    bool isMissing = false;
    if (partner != 0) {
        const Frame& outer = frames_[partner - 1];
        if (p == pFirst_) {
            isMissing = indent() < inner.indent || (indent() == outer.indent && indent() != inner.indent);
        } else {
            isMissing = partner == 1 && std::find_if_not(p + 1, pEnd_, isBlank) == pEnd_;
        }
    }
    const char* pSuspect = missing_.pBracket != nullptr ? missing_.pBracket : inner.pOpened;
    if (p != pTold_ && !tell(p, p, expected(), inner.pOpened, pSuspect)) {
        return nullptr;
    }
    if (!isMissing) {
        return endContainer(p, p + 1) ? p + 1 : nullptr;
    }
    missing_ = {};
    while (frames_.size() != partner) {
        if (!endContainer(p, p)) {
            return nullptr;
        }
    }
    return close(p);
}

const char* TextWalker::failEnd()
{
    const bool isWhole = frames_.empty() && state_ == State::Behind;
    if (!isWhole && pTold_ != pEnd_) {
        const char* pSuspect = missing_.pBracket != nullptr ? missing_.pBracket : innermost();
        if (!tell(pEnd_, pEnd_, expected(), innermost(), frames_.empty() ? nullptr : pSuspect)) {
            return nullptr;
        }
    }
    while (!frames_.empty() && endContainer(pEnd_, pEnd_)) {
    }
    return nullptr;
}

/// Up to the next comma or closing bracket that belongs to no container behind p.
const char* TextWalker::passOver(const char* p)
{
    std::size_t depth = 0;
    for (p = blanksEnd(p); p != pEnd_; p = blanksEnd(p)) {
        const bool isEnd = isEndBracket(*p);
        if (depth == 0 && (*p == ',' || isEnd)) {
            break;
        }
        if (*p == '"') {
            p = passText(p);
        } else if (*p == '/') {
            p = passComment(p);
        } else {
            if (isEnd) {
                --depth;
            } else if (*p == '[' || *p == '{') {
                ++depth;
            }
            ++p;
        }
    }
    return p;
}

/// A quote that no other one closes on its line is passed over alone.
const char* TextWalker::passText(const char* p)
{
    if (p >= pNoText_) {
        const char* pQuote = closingQuote(p + 1, pEnd_);
        if (pQuote != pEnd_ && *pQuote == '"') {
            return pQuote + 1;
        }
        pNoText_ = pQuote; // what follows need not be looked at once more
    }
    return p + 1;
}

const char* TextWalker::passComment(const char* p)
{
    const std::string_view rest(p, static_cast<std::size_t>(pEnd_ - p));
    if (rest.starts_with("//")) {
        return lineEnd(p, pEnd_);
    }
    if (!rest.starts_with("/*")) {
        return p + 1;
    }
    const std::size_t end = rest.find("*/", 2);
    const char* pNext = end != std::string_view::npos ? p + end + 2 : pEnd_;
    noteLines(p, pNext);
    return pNext;
}

} // namespace qv::json
