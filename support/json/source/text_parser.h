#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>
#include <utility>

#include "tree_memory.h"
#include "value_tree.h"
#include <qv_json_c/json_value.h>

namespace qv::json {

/// A stack that keeps its memory. What it gives is filled in place, so that the loops over numbers touch each value
/// once.
template <class T>
class Stack {
public:
    Stack() = default;
    ~Stack() { std::free(pItems_); }
    Stack(const Stack&) = delete;
    Stack& operator=(const Stack&) = delete;

    /// A new item on top, with what the memory held before.
    T& add()
    {
        makeRoom();
        return *pTop_++;
    }

    /// The next add won't throw.
    void makeRoom()
    {
        if (pTop_ == pLimit_) [[unlikely]] {
            grow();
        }
    }

    /// Gives the memory back where it is more than that many items' worth. The stack is empty.
    void trim(std::size_t number)
    {
        if (static_cast<std::size_t>(pLimit_ - pItems_) > number) {
            std::free(std::exchange(pItems_, nullptr));
            pTop_ = nullptr;
            pLimit_ = nullptr;
        }
    }

    std::size_t size() const { return static_cast<std::size_t>(pTop_ - pItems_); }
    T* at(std::size_t index) { return pItems_ + index; }
    T& top() { return pTop_[-1]; }
    void shrink(std::size_t size) { pTop_ = pItems_ + size; }

private:
    void grow()
    {
        const std::size_t number = size();
        const std::size_t capacity = number * 2 + 64;
        auto* pItems = static_cast<T*>(std::realloc(pItems_, capacity * sizeof(T)));
        if (pItems == nullptr) {
            throw std::bad_alloc();
        }
        pItems_ = pItems;
        pTop_ = pItems + number;
        pLimit_ = pItems + capacity;
    }

    T* pItems_ = nullptr;
    T* pTop_ = nullptr;
    T* pLimit_ = nullptr;
};

/// A member's key: in the source text, or in a string of its own where that has escapes.
struct Key {
    const char* pText;
    std::size_t length;
    char* pOwned;
};

/// Working memory that serves one text after the other. What an uncommon text needed isn't kept.
struct ParserMemory {
    static constexpr std::size_t kKeptNumber = 1024;

    void trim()
    {
        values.trim(kKeptNumber);
        keys.trim(kKeptNumber);
    }

    Stack<QvJsonValue_t> values;
    Stack<Key> keys;
    bool isCompact = false; // the trees to be made
};

/// One pass over one text. Values are collected on a stack; a container that closes moves its own into a block of the
/// right size. Lists of numbers are read straight into their block. Throws std::bad_alloc.
class TextParser {
public:
    TextParser(ParserMemory& memory, const char* pBegin, const char* pEnd);

    /// Releases what has not been given away.
    ~TextParser();

    TextParser(const TextParser&) = delete;
    TextParser& operator=(const TextParser&) = delete;

    /// Reads the whole text. False if it is no document: error() tells why.
    bool parse(QvJsonValue_t* pRoot);

    /// What was expected, and where, in words.
    std::string error() const;

private:
    /// Where a run of blanks stands, which decides whose comments are in it.
    enum class Gap {
        Start,       // at the front, or behind an opening bracket
        BehindValue, // a value stands before it
        BehindComma, // a value and its comma do
        AroundColon, // between a key and its value
    };

    /// All of these get the place to read from and return the place behind what they read, or null after fail().
    const char* fail(const char* pAt, const char* pExpected);
    const char* skip(const char* p, Gap gap);
    const char* skipComments(const char* p, const char* pGap, Gap gap);
    const char* parseValue(const char* p);
    const char* parseCommentedValue(const char* p);
    const char* parsePlainValue(const char* p);
    const char* parseNumber(const char* p);
    const char* readAnyNumber(const char* p, QvJsonValue_t* pValue);
    const char* parseNumbers(const char* p, bool* pIsClosed);
    const char* parseWord(const char* p);
    const char* parseString(const char* p);
    const char* parseKey(const char* p);
    const char* parseArray(const char* p);
    const char* parseObject(const char* p);
    const char* closeArray(const char* p, std::size_t firstValue);
    const char* closeObject(const char* p, std::size_t firstValue, std::size_t firstKey);

    char* room(std::size_t bytes);
    QvJsonValue_t& addValue(QvJsonValueType_t type);
    const char* blanksEnd(const char* p) const;
    bool isOnLine(const char* pFrom, const char* pTo) const;
    void dropKeys(std::size_t firstKey);
    void giveRestToLastValue(std::size_t firstValue);
    void appendComment2(QvJsonValue_t& value, const std::string& text);

    ParserMemory& memory_;
    Stack<QvJsonValue_t>& values_;
    Stack<Key>& keys_;
    TreeMemory* pTree_ = nullptr; // of the tree that is made, until its root owns it
    const char* pBegin_;
    const char* pEnd_;
    std::size_t depth_ = 0;

    /// Comments that wait for the value they stand before.
    bool hasComment_ = false;
    std::string comment_;

    const char* pError_ = nullptr;
    const char* pExpected_ = nullptr;
};

} // namespace qv::json
