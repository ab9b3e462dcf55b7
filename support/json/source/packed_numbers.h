#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "value_tree.h"
#include <qv_json_c/json_compact.h>

// Lists of numbers in a compact tree.
namespace qv::json {

/// An array of numbers of one kind, which stand behind it. For the structs, and for every operation that doesn't know
/// better, it is an empty array without room.
struct alignas(kPieceAlignment) PackedBlock {
    ArrayBlock array; // marked kPacked
    std::size_t number;
    QvJsonNumber_t kind;
};

/// The block of a packed list, or null. The value is an array.
inline PackedBlock* packedOf(const QvJsonValue_t& list)
{
    ArrayBlock* pBlock = arrayOf(list);
    return (pBlock->marks & kPacked) != 0 ? reinterpret_cast<PackedBlock*>(pBlock) : nullptr;
}

/// A number at any address.
template <class T>
T numberAt(const void* pNumbers, std::size_t index)
{
    T number{};
    std::memcpy(&number, static_cast<const char*>(pNumbers) + index * sizeof(T), sizeof(T));
    return number;
}

/// Calls work(a number of the C type) for what the kind stands for. The number itself means nothing.
template <class Work>
auto callForKind(QvJsonNumber_t kind, const Work& work)
{
    switch (kind) {
    case QvJsonNumber_Int8:
        return work(int8_t{});
    case QvJsonNumber_Uint8:
        return work(uint8_t{});
    case QvJsonNumber_Int16:
        return work(int16_t{});
    case QvJsonNumber_Uint16:
        return work(uint16_t{});
    case QvJsonNumber_Int32:
        return work(int32_t{});
    case QvJsonNumber_Uint32:
        return work(uint32_t{});
    case QvJsonNumber_Int64:
        return work(int64_t{});
    case QvJsonNumber_Float:
        return work(float{});
    default:
        return work(double{});
    }
}

inline bool isKind(QvJsonNumber_t kind)
{
    return kind >= QvJsonNumber_Int8 && kind <= QvJsonNumber_Double;
}

/// How many items an array has, packed or not.
inline std::size_t itemNumber(const QvJsonValue_t& list)
{
    const PackedBlock* pPacked = packedOf(list);
    return pPacked != nullptr ? pPacked->number : list.holder.pArray->number;
}

/// What an add puts in place for a number, marked as standing there.
template <class T>
QvJsonValue_t placedNumber(T number)
{
    QvJsonValue_t value = {};
    if constexpr (std::is_floating_point_v<T>) {
        value.holder._float = static_cast<double>(number);
        value.type = QvJsonValueType_Float;
    } else {
        value.holder.integer = number; // NOLINT(bugprone-signed-char-misuse): an int8_t is a number here
        value.type = QvJsonValueType_Integer;
    }
    value.reserved = kPlaced;
    return value;
}

/// One number of a packed list as a value of no tree.
QvJsonValue_t packedItem(const PackedBlock& packed, std::size_t index);

/// Makes a packed list one of values with room for `capacity` of them at least. False without memory.
bool unpack(QvJsonValue_t& list, std::size_t capacity);

/// Lets an array be one of values with room for that many. False without memory.
inline bool makeRoom(QvJsonValue_t& array, std::size_t number)
{
    if (packedOf(array) != nullptr) {
        return unpack(array, number);
    }
    return number <= arrayOf(array)->capacity || growArray(array, number);
}

/// Puts numbers into an empty list of a compact tree. Null becomes a list. False where they can't lie there packed.
bool pack(QvJsonValue_t& value, QvJsonNumber_t kind, const void* pNumbers, std::size_t number);

/// Packs the numbers that stand as values behind a place for an ArrayBlock, into that place and what follows it. They
/// are at least one and all Integer or Float. Returns the end of the block, or null and changes nothing where integers
/// and floats are mixed.
char* packItems(char* pBlock, std::size_t number, TreeMemory* pMemory);

} // namespace qv::json
