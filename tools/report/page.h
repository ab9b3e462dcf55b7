#pragma once

// What stands around the content: style, script, the bar with search and gain.

namespace qv::tools::page {

extern const char* const kStyle;
extern const char* const kBar;
extern const char* const kScript;

} // namespace qv::tools::page
