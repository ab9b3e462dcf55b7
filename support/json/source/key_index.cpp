#include "key_index.h"

#include <bit>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "key_hash.h"

namespace qv::json {

KeyIndex* KeyIndex::make(std::size_t number)
{
    // At most half full. Places are kept in 32 bits.
    if (number > UINT32_MAX / 4) {
        return nullptr;
    }
    const std::size_t slotNumber = std::bit_ceil(number) * 2;
    auto* pSlots = static_cast<uint32_t*>(std::calloc(slotNumber, sizeof(uint32_t)));
    if (pSlots == nullptr) {
        return nullptr;
    }
    auto* pIndex = new (std::nothrow) KeyIndex(pSlots, slotNumber - 1);
    if (pIndex == nullptr) {
        std::free(pSlots);
    }
    return pIndex;
}

void KeyIndex::release(KeyIndex* pIndex)
{
    delete pIndex;
}

KeyIndex::~KeyIndex()
{
    std::free(pSlots_);
}

std::size_t KeyIndex::find(const QvJsonValuePair_t* pPairs, std::string_view key) const
{
    for (std::size_t slot = hashOfKey(key);; ++slot) {
        const uint32_t place = pSlots_[slot & mask_];
        if (place == 0) {
            return kNone;
        }
        if (key == pPairs[place - 1].pKey) {
            return place - 1;
        }
    }
}

bool KeyIndex::add(std::string_view key, std::size_t place)
{
    if ((number_ + 1) * 2 > mask_ + 1) {
        return false;
    }
    std::size_t slot = hashOfKey(key);
    while (pSlots_[slot & mask_] != 0) {
        ++slot;
    }
    pSlots_[slot & mask_] = static_cast<uint32_t>(place + 1);
    ++number_;
    return true;
}

} // namespace qv::json
