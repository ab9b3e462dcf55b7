#include <qv_common_c/common_map.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "boundary.h"

namespace {

using namespace qv::common;

static_assert(sizeof(QvCommonMapSlot_t) == 8);

/// A table of keys with open places, at most half full. Keys are few and short, and lookups are what counts: one walk
/// over the caller's text packs its first 16 characters into two words, which are both the hash and, for most keys, all
/// that is compared.
class Map {
public:
    explicit Map(int (*pFree)(void**)) : entries_(kFirstCapacity), pFree_(pFree) {}

    struct Packed {
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        const char* pRest = nullptr; // behind the packed characters; at the end of most keys

        explicit Packed(const char* pKey)
        {
            for (unsigned shift = 0; shift < 64 && *pKey != '\0'; shift += 8, ++pKey) {
                low |= std::uint64_t{static_cast<unsigned char>(*pKey)} << shift;
            }
            for (unsigned shift = 0; shift < 64 && *pKey != '\0'; shift += 8, ++pKey) {
                high |= std::uint64_t{static_cast<unsigned char>(*pKey)} << shift;
            }
            pRest = pKey;
        }

        std::size_t hash() const
        {
            const std::uint64_t mixed = (low ^ std::rotl(high, 29)) * 0x9E3779B97F4A7C15U;
            return mixed >> 32;
        }
    };

    struct Entry {
        QvCommonMapSlot_t* pSlot = nullptr; // null: the place is open
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        std::unique_ptr<char[]> pRest; // null where nothing is left
    };

    /// The entry of the key, or the open place where it would stand.
    Entry& find(const Packed& key)
    {
        Entry* pEntries = entries_.data();
        for (std::size_t at = key.hash() & mask_;; at = (at + 1) & mask_) {
            Entry& entry = pEntries[at];
            if (entry.pSlot == nullptr) {
                return entry;
            }
            if (entry.low == key.low && entry.high == key.high &&
                (entry.pRest != nullptr ? std::strcmp(entry.pRest.get(), key.pRest) == 0 : *key.pRest == '\0')) {
                return entry;
            }
        }
    }

    /// The slot of a key that is packed whole, or null. Calls nothing, which keeps it short.
    QvCommonMapSlot_t* findPacked(const Packed& key) const
    {
        const Entry* pEntries = entries_.data();
        for (std::size_t at = key.hash() & mask_;; at = (at + 1) & mask_) {
            const Entry& entry = pEntries[at];
            const bool isSame = entry.low == key.low && entry.high == key.high && entry.pRest == nullptr;
            if (isSame || entry.pSlot == nullptr) {
                return entry.pSlot;
            }
        }
    }

    /// Room for one more; a find before it is void. May throw.
    void makeRoom()
    {
        if ((number_ + 1) * 2 <= entries_.size()) {
            return;
        }
        std::vector<Entry> old(entries_.size() * 2);
        old.swap(entries_);
        mask_ = entries_.size() - 1;
        for (Entry& entry : old) {
            if (entry.pSlot == nullptr) {
                continue;
            }
            Packed key("");
            key.low = entry.low;
            key.high = entry.high;
            key.pRest = entry.pRest != nullptr ? entry.pRest.get() : "";
            find(key) = std::move(entry);
        }
    }

    /// Fills an open place that find() gave. May throw, and changes nothing then.
    void take(Entry& entry, const Packed& key, QvCommonMapSlot_t* pSlot)
    {
        if (*key.pRest != '\0') {
            const std::size_t bytes = std::strlen(key.pRest) + 1;
            entry.pRest = std::make_unique<char[]>(bytes);
            std::memcpy(entry.pRest.get(), key.pRest, bytes);
        }
        entry.low = key.low;
        entry.high = key.high;
        entry.pSlot = pSlot;
        ++number_;
    }

    int releaseObject(QvCommonMapSlot_t* pSlot) const
    {
        return pFree_ != nullptr ? pFree_(&pSlot->pObject) : QvCommonError_Success;
    }

    const std::vector<Entry>& entries() const { return entries_; }

private:
    static constexpr std::size_t kFirstCapacity = 256; // a power of two, as all that follow

    std::vector<Entry> entries_;
    std::size_t mask_ = kFirstCapacity - 1;
    std::size_t number_ = 0;
    int (*pFree_)(void**);
};

/// What a lookup that misses leads to. It lies in memory that can't be written: a program that writes to an entry it
/// doesn't have is stopped there, and can't plant an object for all others.
const QvCommonMapSlot_t kMissing = {nullptr};

inline int give(QvCommonMapSlot_t* pSlot, QvCommonMapSlot_t** ppSlot)
{
    *ppSlot = pSlot != nullptr ? pSlot : const_cast<QvCommonMapSlot_t*>(&kMissing);
    return pSlot != nullptr ? QvCommonError_Success : QvCommonError_NoEntry;
}

/// For a key that is not packed whole.
[[gnu::noinline]] int getLong(QvCommonMapHandle_t handle, const char* pKey, QvCommonMapSlot_t** ppSlot)
{
    return give(fromHandle<Map>(handle)->find(Map::Packed(pKey)).pSlot, ppSlot);
}

} // namespace

int QvCommonMap_open(QvCommonMapOpenParam_t* pParam, QvCommonMapHandle_t* pHandle)
{
    if (pParam == nullptr || !isClear(pHandle)) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        *pHandle = toHandle(new Map(pParam->pFree));
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
        pMap->makeRoom();
        const Map::Packed key(pKey);
        Map::Entry& entry = pMap->find(key);
        QvCommonMapSlot_t* pEarlier = entry.pSlot;
        if (pEarlier == nullptr) {
            pMap->take(entry, key, pSlot);
        }
        if (pEarlier == nullptr || pEarlier == pSlot) {
            return QvCommonError_Success;
        }
        entry.pSlot = pSlot;
        if (pEarlier->pObject != pSlot->pObject) {
            pMap->releaseObject(pEarlier);
        }
        std::free(pEarlier);
        return QvCommonError_Success;
    });
}

int QvCommonMap_get(QvCommonMapHandle_t handle, const char* pKey, QvCommonMapSlot_t** ppSlot)
{
    if (handle == 0 || pKey == nullptr || ppSlot == nullptr) [[unlikely]] {
        return QvCommonError_BadArgument;
    }
    const Map::Packed key(pKey);
    if (*key.pRest != '\0') [[unlikely]] {
        return getLong(handle, pKey, ppSlot);
    }
    return give(fromHandle<Map>(handle)->findPacked(key), ppSlot);
}

int QvCommonMap_close(QvCommonMapHandle_t* pHandle)
{
    if (!isSet(pHandle)) {
        return QvCommonError_BadArgument;
    }
    const std::unique_ptr<Map> pMap(fromHandle<Map>(*pHandle));
    int status = QvCommonError_Success;
    for (const Map::Entry& entry : pMap->entries()) {
        if (entry.pSlot == nullptr) {
            continue;
        }
        const int released = pMap->releaseObject(entry.pSlot);
        std::free(entry.pSlot);
        if (status == QvCommonError_Success) {
            status = released;
        }
    }
    *pHandle = 0;
    return status;
}
