#pragma once

// What the page shows of one set, or of two over each other.

#include <cstddef>
#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "../path_tree.h"
#include "../session.h"
#include "line_picture.h"

namespace qv::tools::page {

/// The pictures by what they show. Which fields become which picture is the catalog's word, by their roles.
struct Pictures {
    std::string curves;
    std::string schedules;
    std::string matrices; ///< and windows
    std::string maps;
    std::set<std::string> figures;
    std::map<std::pair<const PathNode*, std::string>, std::string> ids; ///< the figure of a field of a record

    bool isFigure(const std::string& id) const { return figures.contains(id); }
};

/// The pictures of all categories. One session, or two whose sets are laid over each other.
Pictures picturesOf(const PathTree& tree, std::span<const Session* const> sides);

/// Where a field of a record is shown: its picture, or the row of the tables.
std::string placeOf(const Pictures& pictures, const Target& field);

/// All fields without a picture as tables, folded by category. Values that are not the defaults stand out.
std::string tablesOf(const PathTree& tree, std::span<const Session* const> sides, const Session& fresh,
                     const Pictures& pictures);

/// A path as the id of an element.
std::string idOf(const std::string& path);

} // namespace qv::tools::page
