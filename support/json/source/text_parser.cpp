#include "text_parser.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

#include "comment_text.h"
#include "natural_run.h"
#include "number_text.h"
#include "packed_numbers.h"
#include "string_text.h"
#include "text_bytes.h"
#include "value_tree.h"

namespace qv::json {

namespace {

/// For what operations add to a tree that was read.
constexpr std::size_t kLaterChunk = 1024;

char* copyTextOrThrow(std::string_view text)
{
    char* pCopy = copyText(text);
    if (pCopy == nullptr) {
        throw std::bad_alloc();
    }
    return pCopy;
}

/// Writes the inside of a text in quotes with a zero byte behind it to a place that has room. Returns the place behind.
char* writeText(char* pTarget, const char* pText, const StringScan& scan)
{
    const std::string_view text(pText, static_cast<std::size_t>(scan.pQuote - pText));
    char* pZero = pTarget + (scan.hasEscape ? resolveEscapes(text, pTarget) : text.copy(pTarget, text.size()));
    *pZero = '\0';
    return pZero + 1;
}

/// What the tree of a text will take, judged by samples of it.
std::size_t expectedBytes(const char* pBegin, const char* pEnd, bool isCompact)
{
    constexpr std::size_t kSample = 256;
    constexpr std::size_t kDistance = 32; // in samples; long texts alone have gaps
    constexpr std::size_t kValue = sizeof(QvJsonValue_t);
    using Weights = std::array<uint8_t, 256>;
    // What each character stands for: a comma for a value, a colon for a key. Letters are those of keys and texts.
    constexpr auto kWeights = [] {
        Weights weights = {};
        for (std::size_t byte = 'A'; byte < weights.size(); ++byte) {
            weights[byte] = 1;
        }
        weights['"'] = 4;
        weights[','] = kValue;
        weights['['] = kValue + sizeof(ArrayBlock);
        weights['{'] = kValue + sizeof(ObjectBlock);
        weights[':'] = sizeof(QvJsonValuePair_t);
        return weights;
    }();
    // Here a comma mostly stands for a number, and a value for a key; of a float each digit behind the point is one of its
    // eight bytes.
    constexpr auto kCompactWeights = [kWeights] {
        Weights weights = kWeights;
        weights[','] = sizeof(uint16_t);
        weights['.'] = sizeof(double) - sizeof(uint16_t);
        weights['['] = sizeof(PackedBlock) + kValue / 2;
        weights['{'] = sizeof(ObjectBlock) + kValue / 2;
        weights[':'] = sizeof(QvJsonValuePair_t) + kValue;
        return weights;
    }();
    const Weights& weights = isCompact ? kCompactWeights : kWeights;
    const auto size = static_cast<std::size_t>(pEnd - pBegin);
    const std::size_t step = size < kSample * kDistance * 8 ? kSample : kSample * kDistance;
    std::size_t bytes = 0;
    std::size_t seen = 0;
    for (std::size_t begin = 0; begin < size; begin += step) {
        const std::size_t end = std::min(begin + kSample, size);
        seen += end - begin;
        for (std::size_t index = begin; index < end; ++index) {
            bytes += weights[static_cast<unsigned char>(pBegin[index])];
        }
    }
    // A little more than judged, and no more than any text can need.
    const double share = seen != 0 ? static_cast<double>(bytes) / static_cast<double>(seen) : 0;
    return static_cast<std::size_t>(static_cast<double>(size) * std::min(share * 1.02, 24.0));
}

bool startsNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '-';
}

/// A number from 0 to 63 that tells most keys apart.
unsigned keyBit(const Key& key)
{
    if (key.length == 0) {
        return 0;
    }
    const auto byteAt = [&](std::size_t index) -> unsigned { return static_cast<unsigned char>(key.pText[index]); };
    const unsigned sum = byteAt(0) * 7 + byteAt(key.length - 1) * 31 + byteAt(key.length / 2) * 13;
    return (sum + static_cast<unsigned>(key.length) * 3) % 64;
}

/// Whether a key stood before in its object. With many keys that is left to the object's index.
bool mayStandBefore(const Key* pKeys, std::size_t index)
{
    if (index >= kIndexedNumber) {
        return true;
    }
    const std::string_view key(pKeys[index].pText, pKeys[index].length);
    return std::any_of(pKeys, pKeys + index,
                       [key](const Key& other) { return key == std::string_view(other.pText, other.length); });
}

} // namespace

TextParser::TextParser(ParserMemory& memory, const char* pBegin, const char* pEnd)
    : memory_(memory), values_(memory.values), keys_(memory.keys), pBegin_(pBegin), pEnd_(pEnd)
{
    const std::size_t bytes = expectedBytes(pBegin, pEnd, memory.isCompact);
    pTree_ = TreeMemory::make(bytes);
    if (pTree_ == nullptr) {
        throw std::bad_alloc();
    }
    pTree_->expect(bytes / 16);
    pTree_->isCompact = memory.isCompact;
}

TextParser::~TextParser()
{
    while (values_.size() != 0) {
        clearValue(values_.top());
        values_.shrink(values_.size() - 1);
    }
    dropKeys(0);
    memory_.trim();
    if (pTree_ != nullptr) {
        TreeMemory::release(pTree_);
    }
}

/// Room in the tree's memory.
inline char* TextParser::room(std::size_t bytes)
{
    char* pRoom = pTree_->room(bytes);
    if (pRoom == nullptr) [[unlikely]] {
        throw std::bad_alloc();
    }
    return pRoom;
}

void TextParser::dropKeys(std::size_t firstKey)
{
    while (keys_.size() != firstKey) {
        std::free(keys_.top().pOwned);
        keys_.shrink(keys_.size() - 1);
    }
}

bool TextParser::parse(QvJsonValue_t* pRoot)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    const char* p = pBegin_;
    if (std::string_view(p, static_cast<std::size_t>(pEnd_ - p)).starts_with(kByteOrderMark)) {
        p += kByteOrderMark.size();
    }
    p = skip(p, Gap::Start);
    p = p != nullptr ? parseValue(p) : nullptr;
    p = p != nullptr ? skip(p, Gap::BehindValue) : nullptr;
    if (p != nullptr && p != pEnd_) {
        p = fail(p, "the end of the text");
    }
    if (p == nullptr) {
        return false;
    }
    giveRestToLastValue(0);
    QvJsonValue_t& root = values_.top();
    if (root.type == QvJsonValueType_String) {
        root.holder.pChar = copyTextOrThrow(root.holder.pChar);
    } else if (ownsContent(root)) {
        ownMemory(root);
        pTree_->expect(kLaterChunk); // for what is added by operations
        pTree_ = nullptr;
    }
    *pRoot = root;
    pRoot->reserved = 0;
    values_.shrink(0);
    return true;
}

std::string TextParser::error() const
{
    std::size_t line = 1;
    const char* pLine = pBegin_;
    for (const char* p = pBegin_; p != pError_; ++p) {
        if (*p == '\n') {
            ++line;
            pLine = p + 1;
        }
    }
    // The second and later bytes of a UTF-8 sequence are no column of their own.
    const auto column = 1 + std::count_if(pLine, pError_, [](char c) { return (c & 0xC0) != 0x80; });
    return std::string("expected ") + pExpected_ + " at line " + std::to_string(line) + ", column " +
           std::to_string(column);
}

const char* TextParser::fail(const char* pAt, const char* pExpected)
{
    pError_ = pAt;
    pExpected_ = pExpected;
    return nullptr;
}

inline const char* TextParser::blanksEnd(const char* p) const
{
    while (p != pEnd_) {
        if (static_cast<unsigned char>(*p) > ' ') {
            return p;
        }
        if (*p == '\n') {
            // Indentation comes in runs.
            ++p;
            while (pEnd_ - p >= 8) {
                const uint64_t others = loadEight(p) ^ repeated(' ');
                if (others != 0) {
                    p += static_cast<unsigned>(std::countr_zero(others)) / 8;
                    break;
                }
                p += 8;
            }
        } else if (*p == ' ' || *p == '\t' || *p == '\r') {
            ++p;
        } else {
            return p;
        }
    }
    return p;
}

inline const char* TextParser::skip(const char* p, Gap gap)
{
    const char* pNext = blanksEnd(p);
    if (pNext != pEnd_ && *pNext == '/') [[unlikely]] {
        return skipComments(pNext, p, gap);
    }
    return pNext;
}

bool TextParser::isOnLine(const char* pFrom, const char* pTo) const
{
    return std::find(pFrom, pTo, '\n') == pTo;
}

const char* TextParser::skipComments(const char* p, const char* pGap, Gap gap)
{
    // Comments come in thousands: nothing here may look back at, or copy, what came before.
    std::string behind;
    bool hasBehind = false;
    bool isOnFirstLine = isOnLine(pGap, p);
    while (p != pEnd_ && *p == '/') {
        CommentScan scan = scanComment(p, pEnd_);
        if (scan.pNext == nullptr) {
            return fail(std::min(scan.pError, pEnd_), scan.pExpected);
        }
        const char* pNext = blanksEnd(scan.pNext);
        bool isBehind = (gap == Gap::BehindValue || gap == Gap::BehindComma) && isOnFirstLine;
        if (gap == Gap::BehindComma && pNext != pEnd_ && *pNext != '/' && isOnLine(scan.pNext, pNext)) {
            // Behind the comma and before another value on the same line: it belongs to that one.
            isBehind = *pNext == ']' || *pNext == '}';
        }
        if (isBehind) {
            joinComment(behind, hasBehind, scan.text);
            hasBehind = true;
        } else {
            joinComment(comment_, hasComment_, scan.text);
            hasComment_ = true;
        }
        isOnFirstLine = isOnFirstLine && isOnLine(p, pNext);
        p = pNext;
    }
    if (hasBehind) {
        appendComment2(values_.top(), behind);
    }
    return p;
}

void TextParser::appendComment2(QvJsonValue_t& value, const std::string& text)
{
    std::string whole = value.pComment2 != nullptr ? value.pComment2 : "";
    joinComment(whole, value.pComment2 != nullptr, text);
    char* pCopy = copyTextOrThrow(whole);
    std::free(value.pComment2);
    value.pComment2 = pCopy;
}

/// Comments with no value behind them go to the value before them, if the container has one.
inline void TextParser::giveRestToLastValue(std::size_t firstValue)
{
    if (hasComment_ && values_.size() > firstValue) [[unlikely]] {
        appendComment2(values_.top(), comment_);
        comment_.clear();
        hasComment_ = false;
    }
}

inline const char* TextParser::parseValue(const char* p)
{
    return hasComment_ ? parseCommentedValue(p) : parsePlainValue(p);
}

const char* TextParser::parseCommentedValue(const char* p)
{
    const std::string comment = std::exchange(comment_, {});
    hasComment_ = false;
    p = parsePlainValue(p);
    if (p != nullptr) {
        values_.top().pComment = copyTextOrThrow(comment);
    }
    return p;
}

/// A new value on the stack, already marked as what it will be in its container.
inline QvJsonValue_t& TextParser::addValue(QvJsonValueType_t type)
{
    QvJsonValue_t& value = values_.add();
    value.pComment = nullptr;
    value.pComment2 = nullptr;
    value.type = type;
    value.reserved = kPlaced;
    return value;
}

const char* TextParser::parsePlainValue(const char* p)
{
    if (p == pEnd_) {
        return fail(p, "a value");
    }
    if (startsNumber(*p)) {
        return parseNumber(p);
    }
    switch (*p) {
    case '"':
        return parseString(p + 1);
    case '[':
        return parseArray(p + 1);
    case '{':
        return parseObject(p + 1);
    default:
        return parseWord(p);
    }
}

const char* TextParser::parseNumber(const char* p)
{
    QvJsonValue_t& value = addValue(QvJsonValueType_Null);
    return readAnyNumber(p, &value);
}

inline const char* TextParser::readAnyNumber(const char* p, QvJsonValue_t* pValue)
{
    const char* pNext = pEnd_ - p >= kShortReach ? readShortNumber(p, pValue) : nullptr;
    if (pNext == nullptr) [[unlikely]] {
        const char* pError = nullptr;
        pNext = readNumber(p, pEnd_, pValue, &pError);
        return pNext != nullptr ? pNext : fail(pError, "a digit");
    }
    return pNext;
}

/// Most of a document is lists of numbers: they are read into the block that they will stay in, which grows at the end
/// of the newest chunk. Where something else comes, what was read moves to the stack, and *pIsClosed is false: then the
/// place behind the last number is returned.
const char* TextParser::parseNumbers(const char* p, bool* pIsClosed)
{
    constexpr std::size_t kFirstRoom = sizeof(ArrayBlock) + 4 * sizeof(QvJsonValue_t);
    char* pBlock = room(kFirstRoom);
    char* pTop = pBlock + sizeof(ArrayBlock);
    const char* pGapEnd = nullptr;
    *pIsClosed = false;
    for (;;) {
        if (pTree_->limit() - pTop < ptrdiff_t{sizeof(QvJsonValue_t)}) [[unlikely]] {
            const auto used = static_cast<std::size_t>(pTop - pBlock);
            pBlock = pTree_->moreRoom(used, used * 2);
            if (pBlock == nullptr) {
                throw std::bad_alloc();
            }
            pTop = pBlock + used;
        }
        auto* pItem = reinterpret_cast<QvJsonValue_t*>(pTop);
        p = readAnyNumber(p, pItem);
        if (p == nullptr) {
            return nullptr;
        }
        pItem->pComment = nullptr;
        pItem->pComment2 = nullptr;
        pItem->reserved = kPlaced;
        pTop += sizeof(QvJsonValue_t);
        if (pEnd_ - p >= 3 && std::memcmp(p, ", ", 2) == 0 && startsNumber(p[2])) [[likely]] {
            p += 2;
            // Integers mostly come in runs.
            if (pItem->type != QvJsonValueType_Integer) {
                continue;
            }
            const NaturalRun run = readNaturals(p, pEnd_, pItem + 1, pTree_->limit(), kPlaced);
            pTop = reinterpret_cast<char*>(run.pItem);
            p = run.pNext;
            if (startsNumber(*p)) {
                continue;
            }
            p -= 2;
        }
        pGapEnd = blanksEnd(p);
        if (pGapEnd == pEnd_ || *pGapEnd != ',') {
            break;
        }
        const char* pNext = blanksEnd(pGapEnd + 1);
        if (pNext == pEnd_ || !startsNumber(*pNext)) {
            break;
        }
        p = pNext;
    }
    const std::size_t number = static_cast<std::size_t>(pTop - pBlock) / sizeof(QvJsonValue_t) - 1;
    if (pGapEnd != pEnd_ && *pGapEnd == ']' && number <= kMaximumCapacity) {
        char* pPackedEnd = pTree_->isCompact ? packItems(pBlock, number, pTree_) : nullptr;
        if (pPackedEnd == nullptr) {
            beginArray(pBlock, number, kIsInner | kFlat, pTree_)->open.number = number;
        }
        pTree_->keep(pPackedEnd != nullptr ? pPackedEnd : pTop);
        addValue(QvJsonValueType_Array).holder.pArray = &reinterpret_cast<ArrayBlock*>(pBlock)->open;
        --depth_;
        *pIsClosed = true;
        return pGapEnd + 1;
    }
    const auto* pItems = reinterpret_cast<const QvJsonValue_t*>(pBlock + sizeof(ArrayBlock));
    for (std::size_t index = 0; index < number; ++index) {
        values_.add() = pItems[index];
    }
    return p;
}

const char* TextParser::parseWord(const char* p)
{
    const std::string_view rest(p, static_cast<std::size_t>(pEnd_ - p));
    if (rest.starts_with("true") || rest.starts_with("false")) {
        const bool isTrue = rest.front() == 't';
        addValue(QvJsonValueType_Boolean).holder._bool = isTrue;
        return p + (isTrue ? 4 : 5);
    }
    if (rest.starts_with("null")) {
        addValue(QvJsonValueType_Null).holder = {};
        return p + 4;
    }
    return fail(p, "a value");
}

const char* TextParser::parseString(const char* p)
{
    const StringScan scan = scanString(p, pEnd_);
    if (scan.pQuote == nullptr) {
        return fail(scan.pError, scan.pExpected);
    }
    char* pText = room(static_cast<std::size_t>(scan.pQuote - p) + 1);
    pTree_->keep(writeText(pText, p, scan));
    QvJsonValue_t& value = addValue(QvJsonValueType_String);
    value.holder.pChar = pText;
    value.reserved |= kInnerText;
    return scan.pQuote + 1;
}

const char* TextParser::parseKey(const char* p)
{
    const StringScan scan = scanString(p, pEnd_);
    if (scan.pQuote == nullptr) {
        return fail(scan.pError, scan.pExpected);
    }
    Key& key = keys_.add();
    key = {p, static_cast<std::size_t>(scan.pQuote - p), nullptr};
    if (scan.hasEscape) {
        key.pOwned = static_cast<char*>(std::malloc(key.length + 1));
        if (key.pOwned == nullptr) {
            throw std::bad_alloc();
        }
        writeText(key.pOwned, p, scan);
        key.pText = key.pOwned;
        key.length = std::strlen(key.pOwned);
    }
    return scan.pQuote + 1;
}

const char* TextParser::parseArray(const char* p)
{
    if (depth_ == kMaximumDepth) {
        return fail(p - 1, "at most 512 nested objects and arrays");
    }
    ++depth_;
    const std::size_t firstValue = values_.size();
    p = skip(p, Gap::Start);
    if (p != nullptr && p != pEnd_ && *p == ']') {
        return closeArray(p, firstValue);
    }
    bool isBehindValue = false;
    if (p != nullptr && p != pEnd_ && startsNumber(*p) && !hasComment_) {
        bool isClosed = false;
        p = parseNumbers(p, &isClosed);
        if (isClosed) {
            return p;
        }
        isBehindValue = true;
    }
    while (p != nullptr) {
        if (!isBehindValue) {
            p = parseValue(p);
        }
        isBehindValue = false;
        p = p != nullptr ? skip(p, Gap::BehindValue) : nullptr;
        if (p == nullptr) {
            break;
        }
        if (p == pEnd_ || (*p != ',' && *p != ']')) {
            return fail(p, "',' or ']'");
        }
        if (*p == ']') {
            return closeArray(p, firstValue);
        }
        p = skip(p + 1, Gap::BehindComma);
    }
    return nullptr;
}

const char* TextParser::closeArray(const char* p, std::size_t firstValue)
{
    giveRestToLastValue(firstValue);
    values_.makeRoom();
    const std::size_t number = values_.size() - firstValue;
    if (number > kMaximumCapacity) {
        throw std::bad_alloc();
    }
    const std::size_t bytes = sizeof(ArrayBlock) + number * sizeof(QvJsonValue_t);
    ArrayBlock* pBlock = beginArray(room(bytes), number, kIsInner | (number == 0 ? kFlat : 0), pTree_);
    pBlock->open.number = number;
    if (number != 0) {
        std::memcpy(pBlock->open.pValues, values_.at(firstValue), number * sizeof(QvJsonValue_t));
    }
    pTree_->keep(reinterpret_cast<char*>(pBlock) + bytes);
    values_.shrink(firstValue);
    addValue(QvJsonValueType_Array).holder.pArray = &pBlock->open;
    giveRestToLastValue(firstValue);
    --depth_;
    return p + 1;
}

const char* TextParser::parseObject(const char* p)
{
    if (depth_ == kMaximumDepth) {
        return fail(p - 1, "at most 512 nested objects and arrays");
    }
    ++depth_;
    const std::size_t firstValue = values_.size();
    const std::size_t firstKey = keys_.size();
    p = skip(p, Gap::Start);
    if (p != nullptr && p != pEnd_ && *p == '}') {
        return closeObject(p, firstValue, firstKey);
    }
    while (p != nullptr) {
        if (p == pEnd_ || *p != '"') {
            return fail(p, keys_.size() == firstKey ? "a key or '}'" : "a key");
        }
        p = parseKey(p + 1);
        p = p != nullptr ? skip(p, Gap::AroundColon) : nullptr;
        if (p == nullptr) {
            break;
        }
        if (p == pEnd_ || *p != ':') {
            return fail(p, "':'");
        }
        p = skip(p + 1, Gap::AroundColon);
        p = p != nullptr ? parseValue(p) : nullptr;
        if (p != nullptr && (p == pEnd_ || *p != ',')) {
            p = skip(p, Gap::BehindValue);
        }
        if (p == nullptr) {
            break;
        }
        if (p == pEnd_ || (*p != ',' && *p != '}')) {
            return fail(p, "',' or '}'");
        }
        if (*p == '}') {
            return closeObject(p, firstValue, firstKey);
        }
        p = skip(p + 1, Gap::BehindComma);
    }
    return nullptr;
}

const char* TextParser::closeObject(const char* p, std::size_t firstValue, std::size_t firstKey)
{
    giveRestToLastValue(firstValue);
    values_.makeRoom();
    const std::size_t number = values_.size() - firstValue;
    const Key* pKeys = keys_.at(firstKey);
    if (number > kMaximumCapacity) {
        throw std::bad_alloc();
    }
    std::size_t bytes = sizeof(ObjectBlock) + number * (sizeof(QvJsonValuePair_t) + sizeof(QvJsonValue_t));
    for (std::size_t index = 0; index < number; ++index) {
        bytes += pKeys[index].length + 1;
    }
    ObjectBlock* pBlock = beginObject(room(bytes), number, 0, pTree_);
    pBlock->open.number = number;
    auto* pValues = reinterpret_cast<QvJsonValue_t*>(pBlock->open.pPairs + number);
    auto* pText = reinterpret_cast<char*>(pValues + number);
    uint64_t seen = 0;
    bool isDoubled = false;
    for (std::size_t index = 0; index < number; ++index) {
        const Key& key = pKeys[index];
        const uint64_t bit = uint64_t{1} << keyBit(key);
        isDoubled = isDoubled || ((seen & bit) != 0 && mayStandBefore(pKeys, index));
        seen |= bit;
        pBlock->open.pPairs[index] = {pText, &pValues[index]};
        std::memcpy(pText, key.pText, key.length);
        pText[key.length] = '\0';
        pText += key.length + 1;
        pValues[index] = *values_.at(firstValue + index);
    }
    pTree_->keep(pText);
    if (isDoubled) {
        mergeDoubledKeys(*pBlock);
    }
    dropKeys(firstKey);
    values_.shrink(firstValue);
    addValue(QvJsonValueType_Object).holder.pObject = &pBlock->open;
    giveRestToLastValue(firstValue);
    --depth_;
    return p + 1;
}

} // namespace qv::json
