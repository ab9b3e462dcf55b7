#pragma once

// Matrices, maps and windows.

#include <span>
#include <string>

#include "../path_tree.h"
#include "../session.h"

namespace qv::tools::page {

// Where there is nothing but zeros to show, a picture is empty.

/// A matrix as a grid of coloured numbers with the sums of its rows; a list of matrices one below the other.
std::string matrixOf(const Target& field, std::span<const Session* const> sides);

/// Maps or weights as heat maps: each with the scale of all, and, where there are several, with its own. Of two sets also
/// the difference.
std::string mapsOf(std::span<const Target> fields, std::span<const Session* const> sides);

/// Regions as rectangles: of a record of that kind, a list of them, or lists of numbers, x, y, width and height first.
std::string windowsOf(const Target& field, std::span<const Session* const> sides);

} // namespace qv::tools::page
