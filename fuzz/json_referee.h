#pragma once

// Another parser as referee.

#include <string_view>

#include <qv_json_c/json_value.h>

namespace qv::test {

enum class Opinion {
    None, ///< the referee goes its own way with such a text
    Same, ///< both refuse it, or both accept it with equal values
    OtherValues,
    Accepts, ///< and ours refuses
    Refuses, ///< and ours accepts
};

/// What the referee says of a text that ours made pOurs of; null where it made nothing. It accepts some that ours
/// refuses: the second half of a surrogate pair alone, and any depth.
Opinion opinionOf(std::string_view text, const QvJsonValue_t* pOurs);

} // namespace qv::test
