#pragma once

// Completions for shells, from the grammar.

#include <string>

namespace qv::tools {

std::string bashCompletion();
std::string zshCompletion();

} // namespace qv::tools
