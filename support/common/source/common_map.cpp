#include "qv_common_c/common_map.h"

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "boundary.h"

namespace {

using namespace qv::common;

static_assert(sizeof(QvCommonMapSlot_t) == 8);

// Lets a lookup work on the caller's text without making a string of it.
struct KeyHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>{}(key); }
};

struct Map {
    int (*pFree)(void**) = nullptr;
    std::unordered_map<std::string, QvCommonMapSlot_t*, KeyHash, std::equal_to<>> slots;

    int releaseObject(QvCommonMapSlot_t* pSlot) const
    {
        return pFree != nullptr ? pFree(&pSlot->pObject) : QvCommonError_Success;
    }
};

// What a lookup that misses leads to. It lies in memory that can't be written: a program that writes to an entry it
// doesn't have is stopped there, and can't plant an object for all others.
const QvCommonMapSlot_t kMissing = {nullptr};

} // namespace

int QvCommonMap_open(QvCommonMapOpenParam_t* pParam, QvCommonMapHandle_t* pHandle)
{
    if (pParam == nullptr || !isClear(pHandle)) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        auto pMap = std::make_unique<Map>();
        pMap->pFree = pParam->pFree;
        *pHandle = toHandle(pMap.release());
        return QvCommonError_Success;
    });
}

int QvCommonMap_add(QvCommonMapHandle_t handle, const char* pKey, QvCommonMapSlot_t** ppSlot)
{
    if (handle == 0 || pKey == nullptr || ppSlot == nullptr || *ppSlot == nullptr) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        Map* pMap = fromHandle<Map>(handle);
        QvCommonMapSlot_t* pSlot = *ppSlot;
        const auto [entry, isNew] = pMap->slots.try_emplace(pKey, pSlot);
        QvCommonMapSlot_t* pEarlier = entry->second;
        if (isNew || pEarlier == pSlot) {
            return QvCommonError_Success;
        }
        entry->second = pSlot;
        if (pEarlier->pObject != pSlot->pObject) {
            pMap->releaseObject(pEarlier);
        }
        std::free(pEarlier);
        return QvCommonError_Success;
    });
}

int QvCommonMap_get(QvCommonMapHandle_t handle, const char* pKey, QvCommonMapSlot_t** ppSlot)
{
    if (handle == 0 || pKey == nullptr || ppSlot == nullptr) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        const Map* pMap = fromHandle<Map>(handle);
        const auto entry = pMap->slots.find(std::string_view(pKey));
        if (entry == pMap->slots.end()) {
            *ppSlot = const_cast<QvCommonMapSlot_t*>(&kMissing);
            return QvCommonError_NoEntry;
        }
        *ppSlot = entry->second;
        return QvCommonError_Success;
    });
}

int QvCommonMap_close(QvCommonMapHandle_t* pHandle)
{
    if (!isSet(pHandle)) {
        return QvCommonError_BadArgument;
    }
    const std::unique_ptr<Map> pMap(fromHandle<Map>(*pHandle));
    int status = QvCommonError_Success;
    for (const auto& [key, pSlot] : pMap->slots) {
        const int released = pMap->releaseObject(pSlot);
        std::free(pSlot);
        if (status == QvCommonError_Success) {
            status = released;
        }
    }
    *pHandle = 0;
    return status;
}
