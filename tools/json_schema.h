#pragma once

// JSON Schemas, draft-07, of what the library reads and writes, made from the catalog.

#include <string>
#include <string_view>

namespace qv::tools {

/// Makes the schema of a form by its name in the catalog; the empty name means any text document. False where there is
/// none of that name.
bool makeSchema(std::string_view name, std::string& text);

} // namespace qv::tools
