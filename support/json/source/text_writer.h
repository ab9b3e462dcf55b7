#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <qv_json_c/json_value.h>

namespace qv::json {

struct PackedBlock;

/// How a text is laid out.
struct Layout {
    int decimals = 6;
    uint32_t itemsPerLine = 0;
    std::string indent = "  ";
};

/// A growing text in memory from malloc(). Throws std::bad_alloc.
class TextBuffer {
public:
    TextBuffer() = default;
    ~TextBuffer();
    TextBuffer(const TextBuffer&) = delete;
    TextBuffer& operator=(const TextBuffer&) = delete;

    /// The place to write to, with room for at least that many bytes; done() tells up to where it was used.
    char* room(std::size_t number)
    {
        if (static_cast<std::size_t>(pLimit_ - pNext_) < number) [[unlikely]] {
            grow(number);
        }
        return pNext_;
    }
    void done(char* pNext) { pNext_ = pNext; }
    const char* limit() const { return pLimit_; }

    void append(std::string_view text) { done(room(text.size()) + text.copy(pNext_, text.size())); }

    /// Gives the text away, with a zero byte behind it.
    char* release();

private:
    void grow(std::size_t number);

    char* pBegin_ = nullptr;
    char* pNext_ = nullptr;
    char* pLimit_ = nullptr;
};

/// Writes one tree.
class TextWriter {
public:
    TextWriter(const Layout& layout, TextBuffer& buffer) : layout_(layout), buffer_(buffer) {}

    /// False if the tree is deeper than the reader takes.
    bool write(const QvJsonValue_t& root);

private:
    bool writeValue(const QvJsonValue_t& value, std::size_t level);
    bool writeArray(const QvJsonValue_t& list, std::size_t level);
    void writeNumbers(const QvJsonValueArray_t& array);
    template <class T>
    void writeIntegers(const T* pNumbers, std::size_t number);
    template <class T>
    void writeFloats(const T* pNumbers, std::size_t number);
    void writePackedArray(const PackedBlock& packed, std::size_t level);
    void writeSeparator(std::size_t index, std::size_t level);
    bool writeCommentedArray(const QvJsonValueArray_t& array, std::size_t level);
    bool writeObject(const QvJsonValueObject_t& object, std::size_t level);
    char* writeScalar(char* p, const QvJsonValue_t& value) const;
    char* writeFloat(char* p, double value) const;
    void writeString(const char* pText);
    void writeSpecial(const char*& p, const char* pEnd);
    void writeCommentsAbove(const QvJsonValue_t& value, std::size_t level);
    void writeCommentBehind(const QvJsonValue_t& value);
    void writeComment(std::string_view line);
    void writeLineEnd(std::size_t level);

    const Layout& layout_;
    TextBuffer& buffer_;
    std::string margin_ = "\n"; // a line end and the deepest indentation so far
};

} // namespace qv::json
