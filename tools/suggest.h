#pragma once

// The word that somebody may have meant.

#include <string>
#include <string_view>
#include <vector>

namespace qv::tools {

/// The candidate nearest to a word by letters to change, add, drop or swap; letter case counts little. Empty where none
/// is near: a third of the word's letters may differ. One that goes on where the word ends is near.
std::string nearest(std::string_view word, const std::vector<std::string>& candidates);

/// " (did you mean NEAREST?)", or nothing where none is near.
std::string suggestion(std::string_view word, const std::vector<std::string>& candidates);

} // namespace qv::tools
