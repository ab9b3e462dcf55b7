#pragma once

#include <cstddef>
#include <string_view>

namespace qv::json {

/// A hash that differs from process to process: nobody can choose keys for a document that meet in one place.
std::size_t hashOfKey(std::string_view key);

} // namespace qv::json
