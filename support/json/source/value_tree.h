#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "key_index.h"
#include "tree_memory.h"
#include <qv_json_c/json_value.h>

// The blocks behind arrays and objects, and the operations on them that the public interface, the reader and the path
// share. Nothing here throws: what runs out of memory yields null or false and changes nothing.
namespace qv::json {

/// How deep containers may be nested in a text, for reader and writer alike.
constexpr std::size_t kMaximumDepth = 512;

/// Marks in QvJsonValue_t::reserved.
constexpr uint32_t kPlaced = 1;    // stands in a container or among the scratch values: never freed on its own
constexpr uint32_t kFrozen = 2;    // stays null
constexpr uint32_t kInnerText = 4; // a String whose text lies in the tree's memory
constexpr uint32_t kHasMemory = 8; // a Null that never was anything else: the holder tells where its content shall lie

/// Marks of blocks. The root's block owns the tree's memory, wherever the root's value is moved to, and the blocks
/// below it lie in that memory. What a place in it once held is lost until the tree is released; so a place whose
/// content was released takes its next one from malloc(), and however often a tree is changed, no more is lost than it
/// first held.
constexpr uint32_t kIsInner = 1;    // the block is freed with the memory that it lies in
constexpr uint32_t kOwnsMemory = 2; // and the memory with the block
constexpr uint32_t kFlat = 4;       // an array of nothing but numbers and booleans without comments
constexpr uint32_t kPacked = 8;     // a flat one whose numbers stand behind it as they are: see packed_numbers.h

/// The most items and pairs of a block.
constexpr std::size_t kMaximumCapacity = UINT32_MAX;

/// An array; its items stand behind it.
struct alignas(kPieceAlignment) ArrayBlock {
    QvJsonValueArray_t open;
    uint32_t capacity;
    uint32_t marks;
    union {
        TreeMemory* pMemory; // of the tree; null where there is none yet
        ArrayBlock* pNext;   // used while a tree is released
    };
};

/// An object. Pairs stand behind it until they outgrow their first capacity; so do the values and keys of a text that
/// was read.
struct alignas(kPieceAlignment) ObjectBlock {
    QvJsonValueObject_t open;
    uint32_t capacity; // of pairs
    uint32_t marks;
    KeyIndex* pIndex;
    std::size_t hint; // where the next lookup starts: behind the last hit
    union {
        TreeMemory* pMemory; // of the tree; null only where there was never a member
        ObjectBlock* pNext;  // used while a tree is released
    };
};

inline ArrayBlock* arrayOf(const QvJsonValue_t& value)
{
    return reinterpret_cast<ArrayBlock*>(value.holder.pArray);
}

inline ObjectBlock* objectOf(const QvJsonValue_t& value)
{
    return reinterpret_cast<ObjectBlock*>(value.holder.pObject);
}

/// Most values are plain numbers: one test passes them over.
inline bool ownsContent(const QvJsonValue_t& value)
{
    constexpr unsigned kOwners =
        1U << QvJsonValueType_Array | 1U << QvJsonValueType_Object | 1U << QvJsonValueType_String;
    return (kOwners >> value.type & 1) != 0;
}

inline QvJsonValue_t* itemsOf(ArrayBlock* pBlock)
{
    return reinterpret_cast<QvJsonValue_t*>(pBlock + 1);
}

inline QvJsonValuePair_t* innerPairsOf(ObjectBlock* pBlock)
{
    return reinterpret_cast<QvJsonValuePair_t*>(pBlock + 1);
}

/// Begins an empty block in a piece of memory that has room for that many items or pairs.
ArrayBlock* beginArray(void* pPiece, std::size_t capacity, uint32_t marks, TreeMemory* pMemory);
ObjectBlock* beginObject(void* pPiece, std::size_t capacity, uint32_t marks, TreeMemory* pMemory);

/// The size of an array with its items.
constexpr std::size_t bytesOfArray(std::size_t capacity)
{
    return sizeof(ArrayBlock) + capacity * sizeof(QvJsonValue_t);
}

/// The memory for what a null value becomes, if it stands in a tree that has some.
inline TreeMemory* memoryFor(const QvJsonValue_t& value)
{
    return (value.reserved & kHasMemory) != 0 ? reinterpret_cast<TreeMemory*>(value.holder.integer) : nullptr;
}

/// A null value in a container whose content shall lie in that memory. It may be null.
inline QvJsonValue_t nullWith(TreeMemory* pMemory)
{
    QvJsonValue_t value = {};
    value.holder.integer = reinterpret_cast<ssize_t>(pMemory);
    value.reserved = kPlaced | (pMemory != nullptr ? kHasMemory : 0);
    return value;
}

/// Makes a value an array or object with nothing in it. It takes no memory before something is added.
void beEmptyArray(QvJsonValue_t& value);
void beEmptyObject(QvJsonValue_t& value);

/// A copy in a string from malloc(); null without memory.
char* copyText(std::string_view text);

/// The room that arrays and objects begin with.
constexpr std::size_t kFirstCapacity = 8;

/// Turns a null value into an array or object. False if it is another kind or frozen, or without memory.
bool becomeArray(QvJsonValue_t& value, std::size_t capacity = kFirstCapacity);
bool becomeObject(QvJsonValue_t& value);

/// The member, or null. The value is an object.
QvJsonValue_t* findMember(const QvJsonValue_t& object, std::string_view key);

/// A new null member at the end; the object doesn't hold the key. Null without memory.
QvJsonValue_t* appendMember(QvJsonValue_t& object, std::string_view key);

/// Makes room for that many items in all, and for more as the block grows, up to `most`. False without memory. The
/// value is an array with less room, and not packed.
bool growArray(QvJsonValue_t& array, std::size_t number, std::size_t most = kMaximumCapacity);

/// That many new null items at the end. The last of them, or null without memory. The value is an array that is not
/// packed.
QvJsonValue_t* appendItems(QvJsonValue_t& array, std::size_t number);

/// Makes a new place of an array a null item.
void beNullItem(QvJsonValue_t& place, ArrayBlock& array);

/// Before an item is given out or becomes anything that isn't a number or boolean.
inline void endFlat(ArrayBlock& array)
{
    array.marks &= ~kFlat;
}

/// Makes the root's block the owner of the memory that its tree lies in. The value is an array or object.
void ownMemory(QvJsonValue_t& root);

/// The place of one more item, still to be filled; null if the block is full. What is no number or boolean ends
/// flatness.
inline QvJsonValue_t* addItem(ArrayBlock& array)
{
    return array.open.number < array.capacity ? &array.open.pValues[array.open.number++] : nullptr;
}

/// The item of an array, or null if there is no array or no such item. A packed list has none.
QvJsonValue_t* findItem(QvJsonValue_t* pValue, std::size_t index);

/// Where a key stands twice, leaves the first member with the last one's value. For objects of one block from the
/// reader.
void mergeDoubledKeys(ObjectBlock& object);

/// The same for a value that holds an array, an object or a text.
void releaseOwned(QvJsonValue_t& value);

/// Releases what the value holds, without the comments; then it is null. Neither recurses nor allocates.
inline void releaseContent(QvJsonValue_t& value)
{
    if (ownsContent(value)) {
        releaseOwned(value);
    }
    value.type = QvJsonValueType_Null;
    value.holder = {};
    value.reserved &= ~(kInnerText | kHasMemory);
}

/// The same with the comments.
void clearValue(QvJsonValue_t& value);

} // namespace qv::json
