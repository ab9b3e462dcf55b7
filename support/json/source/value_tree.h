#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "key_index.h"
#include "qv_json_c/json_value.h"

// The blocks behind arrays and objects, and the operations on them that the public interface, the reader and the path
// share. Nothing here throws: what runs out of memory yields null or false and changes nothing.
namespace qv::json {

// How deep containers may be nested in a text, for reader and writer alike.
constexpr size_t kMaximumDepth = 512;

// Marks in QvJsonValue_t::reserved.
constexpr uint32_t kPlaced = 1; // stands in a container or among the scratch values: never freed on its own
constexpr uint32_t kNode = 2;   // a member in an allocation of its own, its key behind it
constexpr uint32_t kFrozen = 4; // stays null

// An array; its items stand behind it in the same allocation.
struct ArrayBlock {
    QvJsonValueArray_t open;
    size_t capacity;
    ArrayBlock* pNext; // used while a tree is released
};

// An object. Pairs stand behind it until they outgrow their first capacity; so do the values and keys of a text that
// was read. Members added later are nodes.
struct ObjectBlock {
    QvJsonValueObject_t open;
    size_t capacity; // of pairs
    size_t hint;     // where the next lookup starts: behind the last hit
    KeyIndex* pIndex;
    ObjectBlock* pNext; // used while a tree is released
};

inline ArrayBlock* arrayOf(const QvJsonValue_t& value)
{
    return reinterpret_cast<ArrayBlock*>(value.holder.pArray);
}

inline ObjectBlock* objectOf(const QvJsonValue_t& value)
{
    return reinterpret_cast<ObjectBlock*>(value.holder.pObject);
}

// Most values are plain numbers: one test passes them over.
inline bool ownsContent(const QvJsonValue_t& value)
{
    constexpr unsigned kOwners =
        1U << QvJsonValueType_Array | 1U << QvJsonValueType_Object | 1U << QvJsonValueType_String;
    return (kOwners >> value.type & 1) != 0;
}

// A block with room for that many items or pairs, and none yet. For objects, extra bytes behind the pairs.
ArrayBlock* makeArray(size_t capacity);
ObjectBlock* makeObject(size_t capacity, size_t extraBytes);

// A copy in a string from malloc(); null without memory.
char* copyText(std::string_view text);

// Turns a null value into an array or object. False if it is another kind or frozen, or without memory.
bool becomeArray(QvJsonValue_t& value);
bool becomeObject(QvJsonValue_t& value);

// The member, or null. The value is an object.
QvJsonValue_t* findMember(const QvJsonValue_t& object, std::string_view key);

// A new null member at the end; the object doesn't hold the key. Null without memory.
QvJsonValue_t* appendMember(const QvJsonValue_t& object, std::string_view key);

// That many new null items at the end. The last of them, or null without memory. The value is an array.
QvJsonValue_t* appendItems(QvJsonValue_t& array, size_t number);

// The place of one more item, still to be filled; null if the block is full.
inline QvJsonValue_t* addItem(ArrayBlock& array)
{
    return array.open.number < array.capacity ? &array.open.pValues[array.open.number++] : nullptr;
}

// The item of an array, or null if there is no array or no such item.
QvJsonValue_t* findItem(QvJsonValue_t* pValue, size_t index);

// Where a key stands twice, leaves the first member with the last one's value. For objects of one block from the
// reader.
void mergeDoubledKeys(ObjectBlock& object);

// The same for a value that holds an array, an object or a text.
void releaseOwned(QvJsonValue_t& value);

// Releases what the value holds, without the comments; then it is null. Neither recurses nor allocates.
inline void releaseContent(QvJsonValue_t& value)
{
    if (ownsContent(value)) {
        releaseOwned(value);
    }
    value.type = QvJsonValueType_Null;
    value.holder = {};
}

// The same with the comments.
void clearValue(QvJsonValue_t& value);

} // namespace qv::json
