#pragma once

#include <qv_json_c/json_value.h>

namespace qv::json {

/// An empty value for where there is none to give. This thread has sixteen of them and hands them out in turn; without
/// memory for those it is one that stays empty.
QvJsonValue_t* scratchValue();

} // namespace qv::json
