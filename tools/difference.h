#pragma once

// What two sets differ in, field by field.

#include <cstddef>
#include <optional>
#include <vector>

#include "carriage.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {

/// What counts as a difference.
struct Rules {
    bool isExact = false;            ///< every bit of what files carry and of what they don't
    bool showsAll = false;           ///< every element of a list that differs, not the sum of many
    std::optional<double> tolerance; ///< numbers that differ by no more are equal
};

/// A field that differs, or padding that does.
struct Difference {
    enum Kind {
        Values,  ///< elements, each to be shown
        Sum,     ///< many elements of a list
        Length,  ///< number of items in use
        Padding, ///< bytes between the members of a record
    };
    Kind kind = Values;
    Target target;                     ///< the field; the category for padding
    std::vector<std::size_t> elements; ///< to be shown, as indices over all dimensions; 0 for a field that is no list
    std::size_t number = 0;            ///< elements or bytes that differ
    std::size_t most = 0;              ///< index of the element that differs most, of the first where none is a number
    double by = 0;                     ///< how much that one differs
    std::size_t lengths[2] = {0, 0};   ///< items in use
};

/// The differences of a category's records, in the order of its fields.
std::vector<Difference> differencesOf(const PathCategory& category, const Carriage& carriage, const Session& left,
                                      const Session& right, const Rules& rules);

} // namespace qv::tools
