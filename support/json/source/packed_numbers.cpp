#include "packed_numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

namespace qv::json {

namespace {

PackedBlock* beginPacked(void* pPiece, std::size_t number, QvJsonNumber_t kind, TreeMemory* pMemory)
{
    auto* pBlock = static_cast<PackedBlock*>(pPiece);
    beginArray(pBlock, 0, kIsInner | kFlat | kPacked, pMemory)->open.pValues = nullptr;
    pBlock->number = number;
    pBlock->kind = kind;
    return pBlock;
}

std::size_t widthOf(QvJsonNumber_t kind)
{
    return callForKind(kind, [](auto number) { return sizeof number; });
}

/// Writes the numbers of values one behind the other, from the first on: none of them is reached before it was read.
template <class T>
char* storeItems(char* pTarget, const QvJsonValue_t* pItems, std::size_t number)
{
    for (std::size_t index = 0; index < number; ++index) {
        T value{};
        if constexpr (std::is_same_v<T, double>) {
            value = pItems[index].holder._float;
        } else {
            value = static_cast<T>(pItems[index].holder.integer);
        }
        std::memcpy(pTarget + index * sizeof(T), &value, sizeof(T));
    }
    return pTarget + number * sizeof(T);
}

} // namespace

QvJsonValue_t packedItem(const PackedBlock& packed, std::size_t index)
{
    return callForKind(packed.kind,
                       [&](auto type) { return placedNumber(numberAt<decltype(type)>(&packed + 1, index)); });
}

bool unpack(QvJsonValue_t& list, std::size_t capacity)
{
    const PackedBlock& packed = *packedOf(list);
    QvJsonValue_t unpacked = {};
    unpacked.holder.integer = reinterpret_cast<ssize_t>(packed.array.pMemory);
    unpacked.reserved = kHasMemory;
    if (!becomeArray(unpacked, std::max(capacity, packed.number))) {
        return false;
    }
    ArrayBlock& array = *arrayOf(unpacked);
    // The root's block stays the owner of its tree's memory.
    array.marks |= packed.array.marks & kOwnsMemory;
    array.open.number = packed.number;
    callForKind(packed.kind, [&](auto type) {
        for (std::size_t index = 0; index < packed.number; ++index) {
            array.open.pValues[index] = placedNumber(numberAt<decltype(type)>(&packed + 1, index));
        }
    });
    list.holder = unpacked.holder;
    return true;
}

bool pack(QvJsonValue_t& value, QvJsonNumber_t kind, const void* pNumbers, std::size_t number)
{
    if (number > kMaximumCapacity) {
        return false;
    }
    const std::size_t bytes = sizeof(PackedBlock) + number * widthOf(kind);
    void* pPiece = nullptr;
    TreeMemory* pMemory = nullptr;
    if (value.type == QvJsonValueType_Null) {
        pMemory = (value.reserved & kFrozen) == 0 ? memoryFor(value) : nullptr;
    } else {
        const ArrayBlock& array = *arrayOf(value);
        constexpr uint32_t kPlain = kIsInner | kFlat;
        // Most lists are begun right before they are filled: then their block is the newest piece.
        pMemory = array.marks == kPlain && array.open.number == 0 ? array.pMemory : nullptr;
        if (pMemory != nullptr && pMemory->isCompact && pMemory->resize(&array, bytesOfArray(array.capacity), bytes)) {
            pPiece = arrayOf(value);
        }
    }
    if (pMemory == nullptr || !pMemory->isCompact) {
        return false;
    }
    pPiece = pPiece != nullptr ? pPiece : pMemory->take(bytes);
    if (pPiece == nullptr) {
        return false;
    }
    PackedBlock* pBlock = beginPacked(pPiece, number, kind, pMemory);
    std::memcpy(pBlock + 1, pNumbers, number * widthOf(kind));
    value.holder.pArray = &pBlock->array.open;
    value.type = QvJsonValueType_Array;
    value.reserved &= ~kHasMemory;
    return true;
}

char* packItems(char* pBlock, std::size_t number, TreeMemory* pMemory)
{
    const auto* pItems = reinterpret_cast<const QvJsonValue_t*>(pBlock + sizeof(ArrayBlock));
    const QvJsonValueType_t type = pItems[0].type;
    unsigned others = 0;
    ssize_t least = 0;
    ssize_t most = 0;
    for (std::size_t index = 0; index < number; ++index) {
        others |= static_cast<unsigned>(pItems[index].type) ^ static_cast<unsigned>(type);
        least = std::min(least, pItems[index].holder.integer);
        most = std::max(most, pItems[index].holder.integer);
    }
    if (others != 0) {
        return nullptr;
    }
    // The numbers begin in the first value's place, some bytes behind its own number at least: it is read first.
    char* pNumbers = pBlock + sizeof(PackedBlock);
    char* pEnd = nullptr;
    QvJsonNumber_t kind = QvJsonNumber_Double;
    if (type == QvJsonValueType_Float) {
        pEnd = storeItems<double>(pNumbers, pItems, number);
    } else if (least >= 0 && most <= std::numeric_limits<uint16_t>::max()) {
        kind = QvJsonNumber_Uint16;
        pEnd = storeItems<uint16_t>(pNumbers, pItems, number);
    } else if (least >= std::numeric_limits<int32_t>::min() && most <= std::numeric_limits<int32_t>::max()) {
        kind = QvJsonNumber_Int32;
        pEnd = storeItems<int32_t>(pNumbers, pItems, number);
    } else {
        kind = QvJsonNumber_Int64;
        pEnd = storeItems<int64_t>(pNumbers, pItems, number);
    }
    beginPacked(pBlock, number, kind, pMemory);
    return pEnd;
}

} // namespace qv::json
