#include "value_tree.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace qv::json {

namespace {

/// Of a tree that is built: enough for a small object. Each further chunk is twice as large.
constexpr std::size_t kFirstChunk = 640;

/// Lists that outgrow it are better off with realloc().
constexpr std::size_t kLargestPiece = std::size_t{64} * 1024;

bool ownsMemory(const QvJsonValue_t& value)
{
    return ownsContent(value) || value.pComment != nullptr || value.pComment2 != nullptr;
}

void freeComments(const QvJsonValue_t& value)
{
    std::free(value.pComment);
    std::free(value.pComment2);
}

bool isKey(const char* pKey, std::string_view key)
{
    // Most keys differ in the first character.
    if (key.empty()) {
        return *pKey == '\0';
    }
    return *pKey == key[0] && std::strncmp(pKey, key.data(), key.size()) == 0 && pKey[key.size()] == '\0';
}

/// Makes the index anew with all pairs, and room for as many again.
void rebuildIndex(ObjectBlock& object)
{
    KeyIndex::release(object.pIndex);
    object.pIndex = KeyIndex::make(object.open.number * 2);
    if (object.pIndex != nullptr) {
        for (std::size_t place = 0; place < object.open.number; ++place) {
            object.pIndex->add(object.open.pPairs[place].pKey, place);
        }
    }
}

std::size_t findPlace(ObjectBlock& object, std::string_view key)
{
    const QvJsonValuePair_t* pPairs = object.open.pPairs;
    const std::size_t number = object.open.number;
    const std::size_t first = object.hint < number ? object.hint : 0;
    if (first < number && isKey(pPairs[first].pKey, key)) {
        return first;
    }
    if (number >= kIndexedNumber) {
        if (object.pIndex == nullptr) {
            rebuildIndex(object);
        }
        if (object.pIndex != nullptr) {
            return object.pIndex->find(pPairs, key);
        }
    }
    for (std::size_t place = first; place < number; ++place) {
        if (isKey(pPairs[place].pKey, key)) {
            return place;
        }
    }
    for (std::size_t place = 0; place < first; ++place) {
        if (isKey(pPairs[place].pKey, key)) {
            return place;
        }
    }
    return KeyIndex::kNone;
}

/// What a block grows to that shall hold that many; 0 if none can.
std::size_t grownCapacity(std::size_t capacity, std::size_t number)
{
    if (number > kMaximumCapacity) {
        return 0;
    }
    return std::min(std::max({number, capacity * 2, kFirstCapacity}), kMaximumCapacity);
}

bool makeRoomForPair(ObjectBlock& object)
{
    if (object.open.number < object.capacity) {
        return true;
    }
    const std::size_t capacity = grownCapacity(object.capacity, object.open.number + 1);
    void* pPiece = capacity != 0 ? object.pMemory->take(capacity * sizeof(QvJsonValuePair_t)) : nullptr;
    if (pPiece == nullptr) {
        return false;
    }
    if (object.open.number != 0) {
        std::memcpy(pPiece, object.open.pPairs, object.open.number * sizeof(QvJsonValuePair_t));
    }
    object.open.pPairs = static_cast<QvJsonValuePair_t*>(pPiece);
    object.capacity = static_cast<uint32_t>(capacity);
    return true;
}

/// The memory of an array's tree, made where there is none yet. Null without memory.
TreeMemory* memoryOf(ArrayBlock& array)
{
    if (array.pMemory == nullptr) {
        array.pMemory = TreeMemory::make(kFirstChunk);
        array.marks |= array.pMemory != nullptr ? kOwnsMemory : 0;
    }
    return array.pMemory;
}

/// Gives a value a block for members, in that memory or in one of its own.
bool beginMembers(QvJsonValue_t& value, TreeMemory* pMemory)
{
    constexpr std::size_t kBytes = sizeof(ObjectBlock) + kFirstCapacity * sizeof(QvJsonValuePair_t);
    TreeMemory* pOwned = pMemory == nullptr ? TreeMemory::make(kFirstChunk) : nullptr;
    pMemory = pOwned != nullptr ? pOwned : pMemory;
    void* pPiece = pMemory != nullptr ? pMemory->take(kBytes) : nullptr;
    if (pPiece == nullptr) {
        if (pOwned != nullptr) {
            TreeMemory::release(pOwned);
        }
        return false;
    }
    ObjectBlock* pBlock = beginObject(pPiece, kFirstCapacity, pOwned != nullptr ? kOwnsMemory : 0, pMemory);
    value.holder.pObject = &pBlock->open;
    return true;
}

/// What all arrays and objects share that nothing was added to yet. They are never written to: whatever is added needs
/// room first.
constinit ArrayBlock emptyArray = {{0, nullptr}, 0, kIsInner | kFlat, {nullptr}};
constinit ObjectBlock emptyObject = {{0, nullptr}, 0, 0, nullptr, 0, {nullptr}};

} // namespace

ArrayBlock* beginArray(void* pPiece, std::size_t capacity, uint32_t marks, TreeMemory* pMemory)
{
    auto* pBlock = static_cast<ArrayBlock*>(pPiece);
    pBlock->open = {0, itemsOf(pBlock)};
    pBlock->capacity = static_cast<uint32_t>(capacity);
    pBlock->marks = marks;
    pBlock->pMemory = pMemory;
    return pBlock;
}

ObjectBlock* beginObject(void* pPiece, std::size_t capacity, uint32_t marks, TreeMemory* pMemory)
{
    auto* pBlock = static_cast<ObjectBlock*>(pPiece);
    pBlock->open = {0, innerPairsOf(pBlock)};
    pBlock->capacity = static_cast<uint32_t>(capacity);
    pBlock->marks = marks;
    pBlock->pIndex = nullptr;
    pBlock->hint = 0;
    pBlock->pMemory = pMemory;
    return pBlock;
}

void beEmptyArray(QvJsonValue_t& value)
{
    value.holder.pArray = &emptyArray.open;
    value.type = QvJsonValueType_Array;
}

void beEmptyObject(QvJsonValue_t& value)
{
    value.holder.pObject = &emptyObject.open;
    value.type = QvJsonValueType_Object;
}

void ownMemory(QvJsonValue_t& root)
{
    if (root.type == QvJsonValueType_Array) {
        arrayOf(root)->marks |= kOwnsMemory;
    } else {
        objectOf(root)->marks |= kOwnsMemory;
    }
}

bool growArray(QvJsonValue_t& array, std::size_t number, std::size_t most)
{
    ArrayBlock* pBlock = arrayOf(array);
    const std::size_t capacity = std::min(grownCapacity(pBlock->capacity, number), most);
    if (capacity == 0) {
        return false;
    }
    const bool isInner = (pBlock->marks & kIsInner) != 0;
    TreeMemory* pMemory = isInner ? pBlock->pMemory : nullptr;
    if (pMemory != nullptr && pMemory->resize(pBlock, bytesOfArray(pBlock->capacity), bytesOfArray(capacity))) {
        pBlock->capacity = static_cast<uint32_t>(capacity);
        return true;
    }
    void* pPiece = nullptr;
    uint32_t marks = pBlock->marks;
    if (pMemory != nullptr && bytesOfArray(capacity) <= kLargestPiece) {
        pPiece = pMemory->take(bytesOfArray(capacity));
    } else {
        pPiece = std::realloc(isInner ? nullptr : pBlock, bytesOfArray(capacity));
        marks &= ~kIsInner;
    }
    if (pPiece == nullptr) {
        return false;
    }
    if (isInner) {
        std::memcpy(pPiece, pBlock, bytesOfArray(pBlock->open.number));
    }
    auto* pGrown = static_cast<ArrayBlock*>(pPiece);
    pGrown->capacity = static_cast<uint32_t>(capacity);
    pGrown->marks = marks;
    pGrown->open.pValues = itemsOf(pGrown);
    array.holder.pArray = &pGrown->open;
    return true;
}

char* copyText(std::string_view text)
{
    auto* pCopy = static_cast<char*>(std::malloc(text.size() + 1));
    if (pCopy != nullptr) {
        text.copy(pCopy, text.size());
        pCopy[text.size()] = '\0';
    }
    return pCopy;
}

bool becomeArray(QvJsonValue_t& value, std::size_t capacity)
{
    if (value.type == QvJsonValueType_Null && (value.reserved & kFrozen) == 0 && capacity <= kMaximumCapacity) {
        TreeMemory* pMemory = memoryFor(value);
        const std::size_t bytes = bytesOfArray(capacity);
        void* pPiece = pMemory != nullptr ? pMemory->take(bytes) : std::malloc(bytes);
        if (pPiece != nullptr) {
            const uint32_t marks = pMemory != nullptr ? kIsInner | kFlat : kFlat;
            value.holder.pArray = &beginArray(pPiece, capacity, marks, pMemory)->open;
            value.type = QvJsonValueType_Array;
            value.reserved &= ~kHasMemory;
        }
    }
    return value.type == QvJsonValueType_Array;
}

bool becomeObject(QvJsonValue_t& value)
{
    if (value.type == QvJsonValueType_Null && (value.reserved & kFrozen) == 0 &&
        beginMembers(value, memoryFor(value))) {
        value.type = QvJsonValueType_Object;
        value.reserved &= ~kHasMemory;
    }
    return value.type == QvJsonValueType_Object;
}

QvJsonValue_t* findMember(const QvJsonValue_t& value, std::string_view key)
{
    ObjectBlock& object = *objectOf(value);
    const std::size_t place = findPlace(object, key);
    if (place == KeyIndex::kNone) {
        return nullptr;
    }
    object.hint = place + 1;
    return object.open.pPairs[place].pValue;
}

QvJsonValue_t* appendMember(QvJsonValue_t& value, std::string_view key)
{
    if (objectOf(value)->pMemory == nullptr && !beginMembers(value, nullptr)) {
        return nullptr;
    }
    ObjectBlock& object = *objectOf(value);
    if (!makeRoomForPair(object)) {
        return nullptr;
    }
    auto* pMember = static_cast<QvJsonValue_t*>(object.pMemory->take(sizeof(QvJsonValue_t) + key.size() + 1));
    if (pMember == nullptr) {
        return nullptr;
    }
    *pMember = nullWith(object.pMemory);
    auto* pKey = reinterpret_cast<char*>(pMember + 1);
    key.copy(pKey, key.size());
    pKey[key.size()] = '\0';
    object.open.pPairs[object.open.number] = {pKey, pMember};
    ++object.open.number;
    if (object.pIndex != nullptr && !object.pIndex->add(key, object.open.number - 1)) {
        rebuildIndex(object);
    }
    return pMember;
}

QvJsonValue_t* appendItems(QvJsonValue_t& array, std::size_t number)
{
    const std::size_t newNumber = arrayOf(array)->open.number + number;
    if (newNumber > arrayOf(array)->capacity && !growArray(array, newNumber)) {
        return nullptr;
    }
    ArrayBlock* pBlock = arrayOf(array);
    endFlat(*pBlock);
    const QvJsonValue_t item = nullWith(memoryOf(*pBlock));
    for (std::size_t index = pBlock->open.number; index < newNumber; ++index) {
        pBlock->open.pValues[index] = item;
    }
    pBlock->open.number = newNumber;
    return &pBlock->open.pValues[newNumber - 1];
}

void beNullItem(QvJsonValue_t& place, ArrayBlock& array)
{
    endFlat(array);
    place = nullWith(memoryOf(array));
}

QvJsonValue_t* findItem(QvJsonValue_t* pValue, std::size_t index)
{
    if (pValue == nullptr || pValue->type != QvJsonValueType_Array || index >= pValue->holder.pArray->number) {
        return nullptr;
    }
    return &pValue->holder.pArray->pValues[index];
}

void mergeDoubledKeys(ObjectBlock& object)
{
    const std::size_t number = object.open.number;
    QvJsonValuePair_t* pPairs = object.open.pPairs;
    // The pairs that are kept move up; the search sees only those.
    object.open.number = 0;
    for (std::size_t place = 0; place < number; ++place) {
        const QvJsonValuePair_t pair = pPairs[place];
        const std::size_t first = findPlace(object, pair.pKey);
        if (first != KeyIndex::kNone) {
            clearValue(*pPairs[first].pValue);
            *pPairs[first].pValue = *pair.pValue;
            continue;
        }
        pPairs[object.open.number] = pair;
        ++object.open.number;
        if (object.pIndex != nullptr && !object.pIndex->add(pair.pKey, object.open.number - 1)) {
            rebuildIndex(object);
        }
    }
}

void releaseOwned(QvJsonValue_t& root)
{
    // Containers found on the way wait in two lists, linked through the blocks themselves. Memory goes last, as blocks
    // lie in it.
    ArrayBlock* pArrays = nullptr;
    ObjectBlock* pObjects = nullptr;
    TreeMemory* pMemories = nullptr;
    const auto takeMemory = [&](uint32_t marks, TreeMemory* pMemory) {
        if ((marks & kOwnsMemory) != 0) {
            pMemory->pNext = pMemories;
            pMemories = pMemory;
        }
    };
    const auto take = [&](const QvJsonValue_t& value) {
        if (value.type == QvJsonValueType_Array) {
            ArrayBlock* pArray = arrayOf(value);
            takeMemory(pArray->marks, pArray->pMemory);
            if ((pArray->marks & kFlat) == 0) {
                pArray->pNext = pArrays;
                pArrays = pArray;
            } else if ((pArray->marks & kIsInner) == 0) {
                std::free(pArray);
            }
        } else if (value.type == QvJsonValueType_Object && objectOf(value)->pMemory != nullptr) {
            ObjectBlock* pObject = objectOf(value);
            takeMemory(pObject->marks, pObject->pMemory);
            pObject->pNext = pObjects;
            pObjects = pObject;
        } else if (value.type == QvJsonValueType_String && (value.reserved & kInnerText) == 0) {
            std::free(value.holder.pChar);
        }
    };
    const auto takeWhole = [&](const QvJsonValue_t& value) {
        if (ownsMemory(value)) {
            take(value);
            freeComments(value);
        }
    };

    take(root);
    while (pArrays != nullptr || pObjects != nullptr) {
        if (ArrayBlock* pArray = pArrays; pArray != nullptr) {
            pArrays = pArray->pNext;
            for (std::size_t index = 0; index < pArray->open.number; ++index) {
                takeWhole(pArray->open.pValues[index]);
            }
            if ((pArray->marks & kIsInner) == 0) {
                std::free(pArray);
            }
        } else {
            ObjectBlock* pObject = pObjects;
            pObjects = pObject->pNext;
            for (std::size_t place = 0; place < pObject->open.number; ++place) {
                takeWhole(*pObject->open.pPairs[place].pValue);
            }
            KeyIndex::release(pObject->pIndex);
        }
    }
    while (pMemories != nullptr) {
        TreeMemory::release(std::exchange(pMemories, pMemories->pNext));
    }
}

void clearValue(QvJsonValue_t& value)
{
    if ((value.reserved & kFrozen) != 0) {
        return;
    }
    releaseContent(value);
    freeComments(value);
    value.pComment = nullptr;
    value.pComment2 = nullptr;
}

} // namespace qv::json
