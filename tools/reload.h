#pragma once

// Loads of what was loaded before, without a word: what the library has to say of it was said then.

#include <string_view>

#include "session.h"

namespace qv::tools {

/// Reads bytes in their form into the records. False where the library refuses them.
bool reload(std::string_view bytes, Form form, const Session& session);

} // namespace qv::tools
