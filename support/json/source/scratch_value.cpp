#include "scratch_value.h"

#include <array>
#include <cstddef>

#include "value_tree.h"

namespace qv::json {

namespace {

class Ring {
public:
    Ring() = default;
    Ring(const Ring&) = delete;
    Ring& operator=(const Ring&) = delete;

    ~Ring()
    {
        for (QvJsonValue_t& value : values_) {
            clearValue(value);
        }
    }

    QvJsonValue_t* next()
    {
        QvJsonValue_t& value = values_[next_];
        next_ = (next_ + 1) % values_.size();
        clearValue(value);
        value.reserved = kPlaced;
        return &value;
    }

private:
    std::array<QvJsonValue_t, 16> values_ = {};
    size_t next_ = 0;
};

} // namespace

QvJsonValue_t* scratchValue()
{
    thread_local Ring ring;
    return ring.next();
}

} // namespace qv::json
