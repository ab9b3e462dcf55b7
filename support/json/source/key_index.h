#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <qv_json_c/json_value.h>

namespace qv::json {

/// From this many members on, an object is searched by a hash table.
constexpr std::size_t kIndexedNumber = 32;

/// A hash table from keys to their place among an object's pairs. It only makes lookups faster: where there is no
/// memory for it, objects are searched from end to end.
class KeyIndex {
public:
    static constexpr std::size_t kNone = SIZE_MAX;

    /// An index with room for that many keys, or null.
    static KeyIndex* make(std::size_t number);
    static void release(KeyIndex* pIndex);

    KeyIndex(const KeyIndex&) = delete;
    KeyIndex& operator=(const KeyIndex&) = delete;

    /// Place of the key, or kNone.
    std::size_t find(const QvJsonValuePair_t* pPairs, std::string_view key) const;

    /// Notes the place of a key that it doesn't hold. False when it is full.
    bool add(std::string_view key, std::size_t place);

private:
    KeyIndex(uint32_t* pSlots, std::size_t mask) : pSlots_(pSlots), mask_(mask) {}
    ~KeyIndex();

    uint32_t* pSlots_; // place + 1, or 0
    std::size_t mask_;
    std::size_t number_ = 0;
};

} // namespace qv::json
