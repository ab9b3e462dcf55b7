#pragma once

// The fields below a target, down to elements and lists of them.

#include <functional>

#include "path_tree.h"

namespace qv::tools {

/// What is called for each field; isInUse tells whether all lists of records around it count so far.
using VisitLeaf = std::function<void(const Target& leaf, bool isInUse)>;

/// Visits elements and whole lists of elements, in the order of the names. Lists of records are followed as far as they
/// are in use, or to the end of their arrays.
void visitLeaves(const Target& target, const void* pRecord, bool isWhole, const VisitLeaf& visit);

/// Whether a member is one before it under another key, which only a load knows.
bool isOtherKey(const std::vector<PathNode>& members, const PathNode& member);

/// The element of a list with that index over all dimensions; what is no list stays itself.
Target elementOf(const Target& list, std::size_t index);

} // namespace qv::tools
