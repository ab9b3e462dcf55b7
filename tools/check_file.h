#pragma once

// The faults of one file.

#include "document.h"
#include "files.h"
#include "findings.h"
#include "options.h"
#include "path_tree.h"

namespace qv::tools {

/// Finds the faults of a text document, which `document` then holds, or of an image. False where it could not be
/// checked, which has been told.
bool findFaults(const Input& input, const Options& options, const PathTree& tree, Document& document,
                Findings& findings);

} // namespace qv::tools
