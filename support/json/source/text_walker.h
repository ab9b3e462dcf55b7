#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "comment_text.h"
#include "string_text.h"
#include "text_signs.h"
#include <qv_json_c/json_walk.h>

namespace qv::json {

/// One pass over one text that tells what stands where, and goes on behind faults. The language is that of TextParser,
/// by the same scanners of texts, numbers and comments; how tokens follow each other is said here once more, since there
/// a fault is the end. Throws std::bad_alloc.
class TextWalker {
public:
    TextWalker(const char* pBegin, const char* pEnd, QvJsonWalkVisit_t pVisit, void* pUserData);

    /// 0, the syntax error after a fault, or the visitor's status.
    int walk();

private:
    /// What may come next.
    enum class State {
        Root,        // the document's value
        FirstItem,   // an array's first value, or its end
        Item,        // a value behind a comma
        FirstKey,    // an object's first key, or its end
        Key,         // a key behind a comma
        Colon,       // the colon behind a key
        MemberValue, // the value behind a colon
        Behind,      // what follows a value
    };

    static constexpr auto kNone = QV_JSON_WALK_NONE;

    /// A container that is open.
    struct Frame {
        const char* pOpened;
        const char* pLine;     // the line that it was opened on
        std::size_t indent;    // of that line
        std::size_t keyIndent; // of the first key, where that begins a line; else kNone
        std::size_t index;     // of the member or item at hand
        bool isObject;
    };

    /// What a closing bracket of the wrong kind may be.
    enum class Guess {
        Surplus,  // one too many
        Mistyped, // the end of the innermost container
        Missing,  // the end of one further out, and those within it have none
    };

    /// All of these get the place to read from and return the place to go on, or null where the walk is over.
    const char* step(const char* p);
    const char* skip(const char* p);
    const char* skipComments(const char* p, const char* pGap);
    const char* readValue(const char* p);
    const char* readNumbers(const char* p);
    const char* readWord(const char* p);
    const char* readString(const char* p);
    const char* readKey(const char* p);
    const char* readBehind(const char* p);
    const char* open(const char* p);
    const char* close(const char* p);
    const char* goOn(const char* p, State state);

    /// These tell a fault at p and find where to go on behind it.
    const char* fail(const char* p, const char* pExpected);
    const char* failText(const char* p, const StringScan& scan);
    const char* failComment(const char* p, const CommentScan& scan);
    const char* failOpen(const char* p, const char* pFault);
    const char* failMember(const char* p);
    const char* failBracket(const char* p);
    const char* failEnd();
    const char* passOver(const char* p);
    const char* passText(const char* p);
    const char* passComment(const char* p);

    const char* blanksEnd(const char* p);
    void noteLines(const char* pFrom, const char* pTo);
    std::size_t indent() const { return static_cast<std::size_t>(pFirst_ - pLine_); }
    bool isLeftOf(const char* p, const Frame& frame) const;
    Guess guess(const char* p, std::size_t partner) const;
    bool isItemNext(const char* p) const;
    bool isLackingEnd(const char* p) const;
    void judgeKey(const char* p);
    void judgeEnd(const char* p, const Frame& frame);

    const char* expected() const;
    std::size_t offset(const char* p) const { return static_cast<std::size_t>(p - pBegin_); }
    void prepare(QvJsonWalkKind_t kind, const char* pFrom, const char* pTo);
    void decode(const char* p, const StringScan& scan);
    bool deliver();
    bool endContainer(const char* pFrom, const char* pTo);
    bool tell(const char* pFrom, const char* pTo, const char* pExpected, const char* pOpened,
              const char* pSuspect = nullptr);
    const char* innermost() const { return frames_.empty() ? nullptr : frames_.back().pOpened; }

    const char* pBegin_;
    const char* pEnd_;
    QvJsonWalkVisit_t pVisit_;
    void* pUserData_;
    int status_ = 0;
    bool isFaulty_ = false;

    State state_ = State::Root;
    std::vector<Frame> frames_;
    QvJsonWalkEvent_t event_ = {};
    std::string text_; // of the event

    const char* pLine_;                // where the line at hand begins
    const char* pFirst_;               // and its first token
    const char* pNoText_;              // up to here no quote closes a text
    const char* pTold_ = nullptr;      // the place of the newest fault
    const char* pNewestEnd_ = nullptr; // the newest closing bracket
    const char* pMissing_ = nullptr;   // an opening bracket that seems not to be closed
    const char* pSurplus_ = nullptr;   // a closing one that seems to close too much
};

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

} // namespace qv::json
