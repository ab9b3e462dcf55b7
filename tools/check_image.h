#pragma once

// What can be found in an image, where nothing but values can be wrong.

#include <string_view>

#include "findings.h"
#include "path_tree.h"

namespace qv::tools {

void checkImage(std::string_view image, const PathTree& tree, Findings& findings);

} // namespace qv::tools
