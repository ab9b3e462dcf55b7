#include "value_tree.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace qv::json {

namespace {

constexpr size_t kFirstCapacity = 8;

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

// Makes the index anew with all pairs, and room for as many again.
void rebuildIndex(ObjectBlock& object)
{
    KeyIndex::release(object.pIndex);
    object.pIndex = KeyIndex::make(object.open.number * 2);
    if (object.pIndex != nullptr) {
        for (size_t place = 0; place < object.open.number; ++place) {
            object.pIndex->add(object.open.pPairs[place].pKey, place);
        }
    }
}

size_t findPlace(ObjectBlock& object, std::string_view key)
{
    const QvJsonValuePair_t* pPairs = object.open.pPairs;
    const size_t number = object.open.number;
    const size_t first = object.hint < number ? object.hint : 0;
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
    for (size_t place = first; place < number; ++place) {
        if (isKey(pPairs[place].pKey, key)) {
            return place;
        }
    }
    for (size_t place = 0; place < first; ++place) {
        if (isKey(pPairs[place].pKey, key)) {
            return place;
        }
    }
    return KeyIndex::kNone;
}

// What a block grows to that shall hold that many; 0 if none can.
size_t grownCapacity(size_t capacity, size_t number)
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
    const size_t capacity = grownCapacity(object.capacity, object.open.number + 1);
    if (capacity == 0) {
        return false;
    }
    const bool isInner = object.open.pPairs == innerPairsOf(&object);
    void* pOld = isInner ? nullptr : object.open.pPairs;
    auto* pPairs = static_cast<QvJsonValuePair_t*>(std::realloc(pOld, capacity * sizeof(QvJsonValuePair_t)));
    if (pPairs == nullptr) {
        return false;
    }
    if (isInner && object.open.number != 0) {
        std::memcpy(pPairs, object.open.pPairs, object.open.number * sizeof(QvJsonValuePair_t));
    }
    object.open.pPairs = pPairs;
    object.capacity = static_cast<uint32_t>(capacity);
    return true;
}

} // namespace

bool growArray(QvJsonValue_t& array, size_t number)
{
    ArrayBlock* pBlock = arrayOf(array);
    const size_t capacity = grownCapacity(pBlock->capacity, number);
    if (capacity == 0) {
        return false;
    }
    const bool isInChunk = (pBlock->marks & kInChunk) != 0;
    const size_t bytes = sizeof(ArrayBlock) + capacity * sizeof(QvJsonValue_t);
    auto* pGrown = static_cast<ArrayBlock*>(std::realloc(isInChunk ? nullptr : pBlock, bytes));
    if (pGrown == nullptr) {
        return false;
    }
    if (isInChunk) {
        // The old place stays unused. The chunks of a root come along.
        std::memcpy(pGrown, pBlock, sizeof(ArrayBlock) + pBlock->open.number * sizeof(QvJsonValue_t));
        pGrown->marks &= ~kInChunk;
    }
    pGrown->capacity = static_cast<uint32_t>(capacity);
    pGrown->open.pValues = itemsOf(pGrown);
    array.holder.pArray = &pGrown->open;
    return true;
}

ArrayBlock* beginArray(void* pMemory, size_t capacity, uint32_t marks)
{
    auto* pBlock = static_cast<ArrayBlock*>(pMemory);
    pBlock->open = {0, itemsOf(pBlock)};
    pBlock->capacity = static_cast<uint32_t>(capacity);
    pBlock->marks = marks;
    return pBlock;
}

ObjectBlock* beginObject(void* pMemory, size_t capacity, uint32_t marks)
{
    auto* pBlock = static_cast<ObjectBlock*>(pMemory);
    pBlock->open = {0, innerPairsOf(pBlock)};
    pBlock->capacity = static_cast<uint32_t>(capacity);
    pBlock->marks = marks;
    pBlock->pIndex = nullptr;
    pBlock->hint = 0;
    return pBlock;
}

void ownChunks(QvJsonValue_t& root, Chunk* pChunks)
{
    if (root.type == QvJsonValueType_Array) {
        arrayOf(root)->marks |= kOwnsChunks;
        arrayOf(root)->pChunks = pChunks;
    } else {
        objectOf(root)->marks |= kOwnsChunks;
        objectOf(root)->pChunks = pChunks;
    }
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

bool becomeArray(QvJsonValue_t& value)
{
    if (value.type == QvJsonValueType_Null && (value.reserved & kFrozen) == 0) {
        void* pMemory = std::malloc(sizeof(ArrayBlock) + kFirstCapacity * sizeof(QvJsonValue_t));
        if (pMemory != nullptr) {
            ArrayBlock* pBlock = beginArray(pMemory, kFirstCapacity, kFlat);
            value.holder.pArray = &pBlock->open;
            value.type = QvJsonValueType_Array;
        }
    }
    return value.type == QvJsonValueType_Array;
}

bool becomeObject(QvJsonValue_t& value)
{
    if (value.type == QvJsonValueType_Null && (value.reserved & kFrozen) == 0) {
        void* pMemory = std::malloc(sizeof(ObjectBlock) + kFirstCapacity * sizeof(QvJsonValuePair_t));
        if (pMemory != nullptr) {
            ObjectBlock* pBlock = beginObject(pMemory, kFirstCapacity, 0);
            value.holder.pObject = &pBlock->open;
            value.type = QvJsonValueType_Object;
        }
    }
    return value.type == QvJsonValueType_Object;
}

QvJsonValue_t* findMember(const QvJsonValue_t& value, std::string_view key)
{
    ObjectBlock& object = *objectOf(value);
    const size_t place = findPlace(object, key);
    if (place == KeyIndex::kNone) {
        return nullptr;
    }
    object.hint = place + 1;
    return object.open.pPairs[place].pValue;
}

QvJsonValue_t* appendMember(const QvJsonValue_t& value, std::string_view key)
{
    ObjectBlock& object = *objectOf(value);
    if (!makeRoomForPair(object)) {
        return nullptr;
    }
    auto* pNode = static_cast<QvJsonValue_t*>(std::malloc(sizeof(QvJsonValue_t) + key.size() + 1));
    if (pNode == nullptr) {
        return nullptr;
    }
    auto* pKey = reinterpret_cast<char*>(pNode + 1);
    key.copy(pKey, key.size());
    pKey[key.size()] = '\0';
    *pNode = {};
    pNode->reserved = kPlaced | kNode;
    object.open.pPairs[object.open.number] = {pKey, pNode};
    ++object.open.number;
    if (object.pIndex != nullptr && !object.pIndex->add(key, object.open.number - 1)) {
        rebuildIndex(object);
    }
    return pNode;
}

QvJsonValue_t* appendItems(QvJsonValue_t& array, size_t number)
{
    const size_t newNumber = arrayOf(array)->open.number + number;
    if (newNumber > arrayOf(array)->capacity && !growArray(array, newNumber)) {
        return nullptr;
    }
    ArrayBlock* pBlock = arrayOf(array);
    endFlat(*pBlock);
    for (size_t index = pBlock->open.number; index < newNumber; ++index) {
        pBlock->open.pValues[index] = {};
        pBlock->open.pValues[index].reserved = kPlaced;
    }
    pBlock->open.number = newNumber;
    return &pBlock->open.pValues[newNumber - 1];
}

QvJsonValue_t* findItem(QvJsonValue_t* pValue, size_t index)
{
    if (pValue == nullptr || pValue->type != QvJsonValueType_Array || index >= pValue->holder.pArray->number) {
        return nullptr;
    }
    return &pValue->holder.pArray->pValues[index];
}

void mergeDoubledKeys(ObjectBlock& object)
{
    const size_t number = object.open.number;
    QvJsonValuePair_t* pPairs = object.open.pPairs;
    // The pairs that are kept move up; the search sees only those.
    object.open.number = 0;
    for (size_t place = 0; place < number; ++place) {
        const QvJsonValuePair_t pair = pPairs[place];
        const size_t first = findPlace(object, pair.pKey);
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
    // Containers found on the way wait in two lists, linked through the blocks themselves. Chunks go last, as blocks lie
    // in them.
    ArrayBlock* pArrays = nullptr;
    ObjectBlock* pObjects = nullptr;
    Chunk* pChunks = nullptr;
    const auto takeArray = [&](ArrayBlock* pArray) {
        if ((pArray->marks & kOwnsChunks) != 0) {
            pChunks = joinChunks(pArray->pChunks, pChunks);
        }
        if ((pArray->marks & kFlat) == 0) {
            pArray->pNext = pArrays;
            pArrays = pArray;
        } else if ((pArray->marks & kInChunk) == 0) {
            std::free(pArray);
        }
    };
    const auto takeObject = [&](ObjectBlock* pObject) {
        if ((pObject->marks & kOwnsChunks) != 0) {
            pChunks = joinChunks(pObject->pChunks, pChunks);
        }
        pObject->pNext = pObjects;
        pObjects = pObject;
    };
    const auto take = [&](const QvJsonValue_t& value) {
        if (value.type == QvJsonValueType_Array) {
            takeArray(arrayOf(value));
        } else if (value.type == QvJsonValueType_Object) {
            takeObject(objectOf(value));
        } else if (value.type == QvJsonValueType_String && (value.reserved & kChunkText) == 0) {
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
            for (size_t index = 0; index < pArray->open.number; ++index) {
                takeWhole(pArray->open.pValues[index]);
            }
            if ((pArray->marks & kInChunk) == 0) {
                std::free(pArray);
            }
        } else {
            ObjectBlock* pObject = pObjects;
            pObjects = pObject->pNext;
            for (size_t place = 0; place < pObject->open.number; ++place) {
                QvJsonValue_t* pMember = pObject->open.pPairs[place].pValue;
                takeWhole(*pMember);
                if ((pMember->reserved & kNode) != 0) {
                    std::free(pMember);
                }
            }
            if (pObject->open.pPairs != innerPairsOf(pObject)) {
                std::free(pObject->open.pPairs);
            }
            KeyIndex::release(pObject->pIndex);
            if ((pObject->marks & kInChunk) == 0) {
                std::free(pObject);
            }
        }
    }
    releaseChunks(pChunks);
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
