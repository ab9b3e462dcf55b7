#pragma once

// Whether two databases hold the same.

#include <string>

#include "path_tree.h"
#include "session.h"

namespace qv::tools {

/// A field in which two databases differ.
struct FirstDifference {
    std::string path;
    std::string expected;
    std::string found;
};

/// Compares all records; what lives at run time only, handles and addresses, is left out, and where `asDocuments` says
/// so all that only memory has, but for the lengths of lists. False with the first difference.
bool isSame(const PathTree& tree, const Session& expected, const Session& found, bool asDocuments,
            FirstDifference& difference);

/// The same of one part of a record.
bool isSame(const Target& target, const Session& expected, const Session& found, FirstDifference& difference);

} // namespace qv::tools
