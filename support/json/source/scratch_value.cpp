#include "scratch_value.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <pthread.h>

#include "value_tree.h"

namespace qv::json {

namespace {

struct Ring {
    std::array<QvJsonValue_t, 16> values;
    std::size_t next;
};

/// What there is to give where not even a ring can be had. All threads share it, which does no harm as nothing is ever
/// put into it.
constinit QvJsonValue_t frozen = {{}, nullptr, nullptr, QvJsonValueType_Null, kPlaced | kFrozen};

void releaseRing(void* pBlock)
{
    auto* pRing = static_cast<Ring*>(pBlock);
    for (QvJsonValue_t& value : pRing->values) {
        clearValue(value);
    }
    std::free(pRing);
}

/// Where a thread keeps its ring. A thread_local with a destructor would be shorter, but the C library aborts the
/// process when it finds no memory to note such a destructor.
class RingKey {
public:
    RingKey() : isMade_(pthread_key_create(&key_, releaseRing) == 0) {}
    RingKey(const RingKey&) = delete;
    RingKey& operator=(const RingKey&) = delete;
    RingKey(RingKey&&) = delete;
    RingKey& operator=(RingKey&&) = delete;

    /// The calling thread's ring, or null.
    Ring* ring() const
    {
        if (!isMade_) {
            return nullptr;
        }
        auto* pRing = static_cast<Ring*>(pthread_getspecific(key_));
        if (pRing == nullptr) {
            pRing = static_cast<Ring*>(std::calloc(1, sizeof(Ring)));
            if (pRing != nullptr && pthread_setspecific(key_, pRing) != 0) {
                std::free(pRing);
                pRing = nullptr;
            }
        }
        return pRing;
    }

    /// Nothing may lead a thread's end into a library that is no longer there.
    void remove()
    {
        if (isMade_) {
            if (void* pRing = pthread_getspecific(key_); pRing != nullptr) {
                releaseRing(pRing);
            }
            pthread_key_delete(key_);
            isMade_ = false;
        }
    }

private:
    pthread_key_t key_ = 0;
    bool isMade_;
};

RingKey ringKey; // made while the library is loaded, without memory of its own

[[gnu::destructor]] void removeRingKey()
{
    ringKey.remove();
}

} // namespace

QvJsonValue_t* scratchValue()
{
    Ring* pRing = ringKey.ring();
    if (pRing == nullptr) {
        return &frozen;
    }
    QvJsonValue_t& value = pRing->values[pRing->next];
    pRing->next = (pRing->next + 1) % pRing->values.size();
    clearValue(value);
    value.reserved = kPlaced;
    return &value;
}

} // namespace qv::json
