#pragma once

// Paths as people write them: CATEGORY.member[i].member.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qv::tools {

/// One step of a path, from a record to a member or from a list to items.
struct PathStep {
    enum Kind {
        Name,  ///< a member, or in brackets the item of that name
        Index, ///< item `first`
        Range, ///< items from `first` up to but not with `last`
        Any    ///< all members or items
    };
    Kind kind = Name;
    std::string name;
    std::size_t first = 0;
    std::size_t last = 0;
    bool isBracketed = false;
    std::size_t begin = 0; ///< where it stands in the path's text
};

struct Path {
    std::string text; ///< as it was written
    std::vector<PathStep> steps;
    bool mayOmitIndices = false; ///< a name behind a list means that of each item; for who asks of fields, not values
};

/// Reads a path: dots and brackets, or a JSON Pointer; a leading `tuning` is left out. False for what is neither, with
/// the reason.
bool readPath(std::string_view text, Path& path, std::string& error);

} // namespace qv::tools
