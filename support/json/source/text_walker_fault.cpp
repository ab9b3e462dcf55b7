#include "text_walker.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "text_signs.h"

// Where a walk goes on behind a fault, and which bracket it suspects.
namespace qv::json {

namespace {

const char* lineEnd(const char* p, const char* pEnd)
{
    return std::find(p, pEnd, '\n');
}

/// Of several brackets that look wrong the first one counts: the others may come of it.
void suspect(const char*& pBracket, const char* p)
{
    if (pBracket == nullptr) {
        pBracket = p;
    }
}

void acquit(const char*& pBracket, const char* pFrom)
{
    if (pBracket != nullptr && pBracket >= pFrom) {
        pBracket = nullptr;
    }
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

// Indentation: the only hint at what a writer had in mind

/// Whether the token begins a line, and no deeper than the line on which the container was opened.
bool TextWalker::isLeftOf(const char* p, const Frame& frame) const
{
    return p == pFirst_ && pLine_ != frame.pLine && indent() <= frame.indent;
}

/// Whether the token at p, which can't stand in the innermost container, looks like one of the container around that.
bool TextWalker::isLackingEnd(const char* p) const
{
    if (frames_.size() < 2) {
        return false;
    }
    const Frame& frame = frames_.back();
    const bool isOuterObject = frames_[frames_.size() - 2].isObject;
    if (*p == '{') {
        return frame.isObject && !isOuterObject && pLine_ != frame.pLine;
    }
    if (*p != '"' || !isOuterObject || !isLeftOf(p, frame)) {
        return false;
    }
    if (frame.isObject) {
        return frame.keyIndent != kNone && frame.keyIndent > frame.indent;
    }
    const StringScan scan = scanString(p + 1, pEnd_);
    const char* pNext = scan.pQuote != nullptr ? std::find_if_not(scan.pQuote + 1, pEnd_, isBlank) : pEnd_;
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
    } else if (frame.keyIndent > frame.indent && indent() <= frame.indent) {
        suspect(pMissing_, frame.pOpened);
    } else if (indent() > frame.keyIndent) {
        suspect(pSurplus_, pNewestEnd_);
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
        suspect(pMissing_, frame.pOpened);
    } else if (indent() == frame.indent) {
        // Where a container ends in its place, nothing was wrong within it.
        acquit(pMissing_, frame.pOpened);
        acquit(pSurplus_, frame.pOpened);
    } else if (depth == 0 || frames_[depth - 1].pLine != frame.pLine) {
        // Of several containers that begin on one line each may have a step of its own.
        suspect(pSurplus_, p);
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
        // Without its closing quote a key has swallowed what its value begins with, and a value the comma behind it.
        pNext = isKey ? passOver(p + 1) : pQuote;
        if (pNext <= pQuote) {
            const char* pLast = pQuote;
            while (pLast != p + 1 && isBlank(pLast[-1])) {
                --pLast;
            }
            pNext = pLast != p + 1 && pLast[-1] == ',' ? pLast - 1 : passOver(pQuote);
        }
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

/// A token at p of the container around the innermost one, which has no end.
const char* TextWalker::failOpen(const char* p, const char* pFault)
{
    const char* pSuspect = pMissing_ != nullptr ? pMissing_ : innermost();
    pMissing_ = nullptr;
    if (!tell(pFault, pFault, expected(), innermost(), pSuspect) || !endContainer(p, p)) {
        return nullptr;
    }
    ++frames_.back().index;
    return goOn(p, frames_.back().isObject ? State::Key : State::Item);
}

/// A member in an array, whose key was taken for an item.
const char* TextWalker::failMember(const char* p)
{
    const Frame& frame = frames_.back();
    // An object without its opening brace, or one that was closed too early: its other members would all be faults.
    const char* pNext = passOver(p);
    while (pNext != pEnd_ && *pNext == ',') {
        pNext = passOver(pNext + 1);
    }
    if (pNext != pEnd_ && *pNext == '}' && (pNext != pFirst_ || indent() >= frame.indent)) {
        ++pNext;
    }
    const char* pSuspect = std::exchange(pSurplus_, nullptr);
    if (pSuspect == nullptr) {
        pSuspect = pNewestEnd_ != nullptr && pNewestEnd_ > frame.pOpened ? pNewestEnd_ : frame.pOpened;
    }
    return tell(p, pNext, expected(), frame.pOpened, pSuspect) ? goOn(pNext, State::Behind) : nullptr;
}

/// Whether a list goes on at p.
bool TextWalker::isItemNext(const char* p) const
{
    const char* pComma = std::find_if_not(p, pEnd_, isBlank);
    const char* pNext = pComma != pEnd_ ? std::find_if_not(pComma + 1, pEnd_, isBlank) : pEnd_;
    return pNext != pEnd_ && *pComma == ',' && *pNext != '"' && startsValue(pNext, pEnd_);
}

/// What a closing bracket of the wrong kind is. `partner` is the number of containers down to the innermost one that it
/// could close, 0 if there is none.
TextWalker::Guess TextWalker::guess(const char* p, std::size_t partner) const
{
    const Frame& inner = frames_.back();
    const char* pNext = std::find_if_not(p + 1, pEnd_, isBlank);
    if (partner == 0) {
        // Better one too many than the end of the document before its end.
        return frames_.size() == 1 && pNext != pEnd_ ? Guess::Surplus : Guess::Mistyped;
    }
    if (p == pFirst_) {
        const Frame& outer = frames_[partner - 1];
        const bool isOuter = indent() < inner.indent || (indent() == outer.indent && indent() != inner.indent);
        return isOuter ? Guess::Missing : Guess::Mistyped;
    }
    if (pMissing_ != nullptr || (partner == 1 && pNext == pEnd_)) {
        return Guess::Missing;
    }
    if (inner.isObject) {
        return isItemNext(pNext) ? Guess::Mistyped : Guess::Missing;
    }
    if (!isItemNext(pNext)) {
        return Guess::Mistyped;
    }
    return event_.kind == QvJsonWalkKind_ObjectEnd && inner.pLine != pLine_ ? Guess::Surplus : Guess::Missing;
}

/// A closing bracket of the wrong kind.
const char* TextWalker::failBracket(const char* p)
{
    const bool isBrace = *p == '}';
    const char* pOpened = innermost();
    std::size_t partner = frames_.size();
    while (partner != 0 && frames_[partner - 1].isObject != isBrace) {
        --partner;
    }
    const Guess what = guess(p, partner);
    const char* pSuspect = what == Guess::Surplus ? std::exchange(pSurplus_, nullptr) : pMissing_;
    if (pSuspect == nullptr) {
        pSuspect = what == Guess::Surplus ? p : pOpened;
    }
    if (p != pTold_ && !tell(p, what == Guess::Surplus ? p + 1 : p, expected(), pOpened, pSuspect)) {
        return nullptr;
    }
    if (what == Guess::Surplus) {
        return p + 1;
    }
    if (what == Guess::Mistyped) {
        return endContainer(p, p + 1) ? p + 1 : nullptr;
    }
    pMissing_ = nullptr;
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
        const char* pSuspect = pMissing_ != nullptr ? pMissing_ : innermost();
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
