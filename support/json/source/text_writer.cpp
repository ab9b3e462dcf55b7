#include "text_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>

#include "comment_text.h"
#include "fixed_decimal.h"
#include "packed_numbers.h"
#include "string_text.h"
#include "value_tree.h"

namespace qv::json {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD

/// Whether a byte stands for itself in a text.
constexpr auto kIsPlain = [] {
    std::array<bool, 256> isPlain = {};
    for (std::size_t byte = ' '; byte < 0x80; ++byte) {
        isPlain[byte] = byte != '"' && byte != '\\';
    }
    return isPlain;
}();

bool hasComment(const QvJsonValue_t& value)
{
    return value.pComment != nullptr || value.pComment2 != nullptr;
}

} // namespace

TextBuffer::~TextBuffer()
{
    std::free(pBegin_);
}

void TextBuffer::grow(std::size_t number)
{
    const auto used = static_cast<std::size_t>(pNext_ - pBegin_);
    const std::size_t capacity = std::max(used + number, used * 2) + 4096;
    auto* pBegin = static_cast<char*>(std::realloc(pBegin_, capacity));
    if (pBegin == nullptr) {
        throw std::bad_alloc();
    }
    pBegin_ = pBegin;
    pNext_ = pBegin + used;
    pLimit_ = pBegin + capacity;
}

char* TextBuffer::release()
{
    char* pZero = room(1);
    *pZero = '\0';
    char* pText = pBegin_;
    // What is left over goes back; a text that can't shrink is as good.
    if (void* pShrunk = std::realloc(pText, static_cast<std::size_t>(pNext_ - pBegin_) + 1); pShrunk != nullptr) {
        pText = static_cast<char*>(pShrunk);
    }
    pBegin_ = nullptr;
    pNext_ = nullptr;
    pLimit_ = nullptr;
    return pText;
}

bool TextWriter::write(const QvJsonValue_t& root)
{
    writeCommentsAbove(root, 0);
    if (!writeValue(root, 0)) {
        return false;
    }
    writeCommentBehind(root);
    buffer_.append("\n");
    return true;
}

bool TextWriter::writeValue(const QvJsonValue_t& value, std::size_t level)
{
    switch (value.type) {
    case QvJsonValueType_Array:
        return writeArray(value, level);
    case QvJsonValueType_Object:
        return writeObject(*value.holder.pObject, level);
    case QvJsonValueType_String:
        writeString(value.holder.pChar);
        break;
    default:
        buffer_.done(writeScalar(buffer_.room(kFixedRoom), value));
        break;
    }
    return true;
}

/// What is neither container nor text. There is room for kFixedRoom bytes at p.
char* TextWriter::writeScalar(char* p, const QvJsonValue_t& value) const
{
    std::string_view word = "null";
    if (value.type == QvJsonValueType_Integer) {
        return writeInteger(p, value.holder.integer);
    }
    if (value.type == QvJsonValueType_Float) {
        return writeFloat(p, value.holder._float);
    }
    if (value.type == QvJsonValueType_Boolean) {
        word = value.holder._bool ? "true" : "false";
    }
    return p + word.copy(p, word.size());
}

char* TextWriter::writeFloat(char* p, double value) const
{
    if (std::isfinite(value)) {
        return writeFixed(p, value, layout_.decimals);
    }
    std::memcpy(p, "null", 4);
    return p + 4;
}

/// The inside of a list of numbers and booleans on one line. Each item is written with the separator behind it.
void TextWriter::writeNumbers(const QvJsonValueArray_t& array)
{
    constexpr std::size_t kRoom = 8 + kFixedRoom;
    const bool isShort = layout_.decimals == 6;
    char* p = buffer_.room(kRoom);
    const char* pLimit = buffer_.limit() - kRoom;
    for (const QvJsonValue_t *pItem = array.pValues, *pEnd = pItem + array.number; pItem != pEnd; ++pItem) {
        if (p > pLimit) [[unlikely]] {
            buffer_.done(p);
            p = buffer_.room(kRoom);
            pLimit = buffer_.limit() - kRoom;
        }
        const bool isInteger = pItem->type == QvJsonValueType_Integer;
        if (isInteger && static_cast<std::size_t>(pItem->holder.integer) < 10000) {
            p = writeShortItem(p, static_cast<uint32_t>(pItem->holder.integer));
            continue;
        }
        char* pNext = nullptr;
        if (isShort && pItem->type == QvJsonValueType_Float) {
            pNext = writeShortFixed(p, pItem->holder._float);
        }
        p = pNext != nullptr ? pNext : writeScalar(p, *pItem);
        std::memcpy(p, ", ", 2);
        p += 2;
    }
    buffer_.done(array.number != 0 ? p - 2 : p);
}

/// The same of a packed list, whose kind is known beforehand.
template <class T>
void TextWriter::writeIntegers(const T* pNumbers, std::size_t number)
{
    // Digits, sign, separator; and what is written behind a number's end.
    constexpr std::size_t kWidth = std::numeric_limits<T>::digits10 + 4;
    constexpr std::size_t kBehind = 16;
    constexpr std::size_t kPiece = 256; // numbers for which room is made at once
    for (std::size_t first = 0; first < number; first += kPiece) {
        const std::size_t end = std::min(first + kPiece, number);
        char* p = buffer_.room((end - first) * kWidth + kBehind);
        // Those below zero are large here.
        uint64_t bits = 0;
        for (std::size_t index = first; index < end; ++index) {
            bits |= static_cast<uint64_t>(static_cast<int64_t>(pNumbers[index]));
        }
        if (bits < 8192) {
            for (std::size_t index = first; index < end; ++index) {
                p = writeShortItem(p, static_cast<uint32_t>(pNumbers[index]));
            }
        } else if (bits < 65536) {
            for (std::size_t index = first; index < end; ++index) {
                p = writeFiveDigitItem(p, static_cast<uint32_t>(pNumbers[index]));
            }
        } else if (sizeof(T) <= 2) {
            for (std::size_t index = first; index < end; ++index) {
                const auto value = static_cast<int32_t>(pNumbers[index]); // NOLINT(bugprone-signed-char-misuse)
                *p = '-';
                p += value < 0 ? 1 : 0;
                p = writeFiveDigitItem(p, static_cast<uint32_t>(value < 0 ? -value : value));
            }
        } else {
            for (std::size_t index = first; index < end; ++index) {
                p = writeInteger(p, pNumbers[index]);
                std::memcpy(p, ", ", 2);
                p += 2;
            }
        }
        buffer_.done(p);
    }
}

template <class T>
void TextWriter::writeFloats(const T* pNumbers, std::size_t number)
{
    constexpr std::size_t kRoom = 8 + kFixedRoom;
    const bool isShort = layout_.decimals == 6;
    for (std::size_t index = 0; index < number; ++index) {
        const auto value = static_cast<double>(pNumbers[index]);
        char* p = buffer_.room(kRoom);
        char* pNext = isShort ? writeShortFixed(p, value) : nullptr;
        p = pNext != nullptr ? pNext : writeFloat(p, value);
        std::memcpy(p, ", ", 2);
        buffer_.done(p + 2);
    }
}

void TextWriter::writePackedArray(const PackedBlock& packed, std::size_t level)
{
    buffer_.append("[");
    if (layout_.itemsPerLine == 0) {
        callForKind(packed.kind, [&](auto type) {
            const auto* pNumbers = reinterpret_cast<const decltype(type)*>(&packed + 1);
            if constexpr (std::is_floating_point_v<decltype(type)>) {
                writeFloats(pNumbers, packed.number);
            } else {
                writeIntegers(pNumbers, packed.number);
            }
        });
        buffer_.done(buffer_.room(0) - 2); // the last separator goes; no packed list is empty
    } else {
        for (std::size_t index = 0; index < packed.number; ++index) {
            writeSeparator(index, level);
            buffer_.done(writeScalar(buffer_.room(kFixedRoom), packedItem(packed, index)));
        }
    }
    buffer_.append("]");
}

/// What stands before an item, by its place in the list.
void TextWriter::writeSeparator(std::size_t index, std::size_t level)
{
    if (index != 0 && layout_.itemsPerLine != 0 && index % layout_.itemsPerLine == 0) {
        buffer_.append(",");
        writeLineEnd(level + 1);
    } else if (index != 0) {
        buffer_.append(", ");
    }
}

bool TextWriter::writeArray(const QvJsonValue_t& list, std::size_t level)
{
    if (level >= kMaximumDepth) {
        return false;
    }
    if (const PackedBlock* pPacked = packedOf(list); pPacked != nullptr) {
        writePackedArray(*pPacked, level);
        return true;
    }
    const QvJsonValueArray_t& array = *list.holder.pArray;
    if ((arrayOf(list)->marks & kFlat) != 0 && layout_.itemsPerLine == 0) {
        buffer_.append("[");
        writeNumbers(array);
        buffer_.append("]");
        return true;
    }
    if (std::any_of(array.pValues, array.pValues + array.number, hasComment)) {
        return writeCommentedArray(array, level);
    }
    buffer_.append("[");
    for (std::size_t index = 0; index < array.number; ++index) {
        const QvJsonValue_t& value = array.pValues[index];
        writeSeparator(index, level);
        if (value.type == QvJsonValueType_Integer || value.type == QvJsonValueType_Float) {
            buffer_.done(writeScalar(buffer_.room(kFixedRoom), value));
        } else if (!writeValue(value, level + 1)) {
            return false;
        }
    }
    buffer_.append("]");
    return true;
}

bool TextWriter::writeCommentedArray(const QvJsonValueArray_t& array, std::size_t level)
{
    buffer_.append("[");
    for (std::size_t index = 0; index < array.number; ++index) {
        const QvJsonValue_t& value = array.pValues[index];
        writeLineEnd(level + 1);
        writeCommentsAbove(value, level + 1);
        if (!writeValue(value, level + 1)) {
            return false;
        }
        buffer_.append(index + 1 < array.number ? "," : "");
        writeCommentBehind(value);
    }
    writeLineEnd(level);
    buffer_.append("]");
    return true;
}

bool TextWriter::writeObject(const QvJsonValueObject_t& object, std::size_t level)
{
    if (level >= kMaximumDepth) {
        return false;
    }
    buffer_.append("{");
    for (std::size_t place = 0; place < object.number; ++place) {
        const QvJsonValue_t& value = *object.pPairs[place].pValue;
        writeLineEnd(level + 1);
        writeCommentsAbove(value, level + 1);
        writeString(object.pPairs[place].pKey);
        buffer_.append(": ");
        if (!writeValue(value, level + 1)) {
            return false;
        }
        if (place + 1 < object.number) {
            buffer_.append(",");
        }
        writeCommentBehind(value);
    }
    if (object.number != 0) {
        writeLineEnd(level);
    }
    buffer_.append("}");
    return true;
}

void TextWriter::writeString(const char* p)
{
    const char* pEnd = p + std::strlen(p);
    buffer_.append("\"");
    while (p != pEnd) {
        const char* pPlain = p;
        while (kIsPlain[static_cast<unsigned char>(*p)]) { // stops at the zero byte
            ++p;
        }
        buffer_.append(std::string_view(pPlain, static_cast<std::size_t>(p - pPlain)));
        if (p != pEnd) {
            writeSpecial(p, pEnd);
        }
    }
    buffer_.append("\"");
}

/// Writes the character at p, which doesn't stand for itself, and moves p behind it.
void TextWriter::writeSpecial(const char*& p, const char* pEnd)
{
    constexpr std::string_view kSpecial = "\"\\\b\f\n\r\t";
    constexpr std::string_view kLetters = "\"\\bfnrt";
    constexpr std::string_view kHex = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(*p);
    if (byte >= 0x80) {
        const std::size_t length = sequenceLength(p, pEnd);
        buffer_.append(length != 0 ? std::string_view(p, length) : kReplacement);
        p += length != 0 ? length : 1;
        return;
    }
    if (const std::size_t found = kSpecial.find(*p); found != std::string_view::npos) {
        const std::array<char, 2> text = {'\\', kLetters[found]};
        buffer_.append(std::string_view(text.data(), text.size()));
    } else {
        const std::array<char, 6> text = {'\\', 'u', '0', '0', kHex[byte / 16], kHex[byte % 16]};
        buffer_.append(std::string_view(text.data(), text.size()));
    }
    ++p;
}

/// Each line of the comment gets a line of its own; the indentation of the first one is there already.
void TextWriter::writeCommentsAbove(const QvJsonValue_t& value, std::size_t level)
{
    if (value.pComment == nullptr) {
        return;
    }
    const char* p = value.pComment;
    for (bool isLast = false; !isLast;) {
        const char* pLineEnd = p + std::strcspn(p, "\n");
        writeComment(trimmedLine(std::string_view(p, static_cast<std::size_t>(pLineEnd - p))));
        writeLineEnd(level);
        isLast = *pLineEnd == '\0';
        p = pLineEnd + 1;
    }
}

void TextWriter::writeCommentBehind(const QvJsonValue_t& value)
{
    if (value.pComment2 == nullptr) {
        return;
    }
    std::string text = value.pComment2;
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::replace(text.begin(), text.end(), '\r', ' ');
    buffer_.append(" ");
    writeComment(trimmedLine(text));
}

void TextWriter::writeComment(std::string_view line)
{
    buffer_.append(line.empty() ? "//" : "// ");
    const char* pEnd = line.data() + line.size();
    for (const char* p = line.data(); p != pEnd;) {
        const std::size_t length = sequenceLength(p, pEnd);
        buffer_.append(length != 0 ? std::string_view(p, length) : kReplacement);
        p += length != 0 ? length : 1;
    }
}

void TextWriter::writeLineEnd(std::size_t level)
{
    const std::size_t length = 1 + level * layout_.indent.size();
    while (margin_.size() < length) {
        margin_ += layout_.indent;
    }
    buffer_.append(std::string_view(margin_.data(), length));
}

} // namespace qv::json
