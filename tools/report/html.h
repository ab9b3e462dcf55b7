#pragma once

// Pieces of HTML.

#include <string>
#include <string_view>

namespace qv::tools::page {

/// A text without characters that HTML takes for its own, also inside attributes.
std::string escaped(std::string_view text);

/// A meaning of the catalog without its backquotes; `isShort`: its first clause alone.
std::string meaningOf(const char* pMeaning, bool isShort = false);

/// A number for an axis: 20k, 1.5M.
std::string axisNumber(double number);

/// A number with up to six digits.
std::string shortNumber(double number);

} // namespace qv::tools::page
