#pragma once

// What a record holds as the library writes it into a text.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "catalog_tree.h"

namespace qv::tools {

/// How a JSON text is laid out.
struct Layout {
    std::string newline = "\n"; ///< empty: all on one line
    std::string unit = "  ";    ///< blanks of one level
    std::string colon = ": ";
    std::string comma = ", "; ///< between what stands on one line
};

/// One element, by what its document writes for it. Floats have six digits behind the point, or as few as it takes
/// where six don't give the same number again.
std::string writtenElement(const QvDatabaseCatalogField_t& field, const std::byte* pBytes);

/// A member's value whole: a list on one line, an object one member a line. pRecord is the record that the field
/// belongs to, `indent` the blanks before its key.
std::string writtenMember(const FieldNode& node, const std::byte* pRecord, const Layout& layout,
                          const std::string& indent);

/// An object of a record's members, whose closing brace stands behind the indent.
std::string writtenObject(const FieldNode& node, const std::byte* pRecord, const Layout& layout,
                          const std::string& indent);

/// An item of a list: an element, a row, or an object whose closing brace stands behind the indent. `dimension` is the
/// number of lists around its own.
std::string writtenItem(const FieldNode& node, const std::byte* pItem, std::size_t dimension, const Layout& layout,
                        const std::string& indent);

/// Bytes of an item.
std::size_t itemBytes(const QvDatabaseCatalogField_t& field, std::size_t dimension);

/// An object of members that are written already, key and value.
std::string objectOf(const std::vector<std::string>& members, const Layout& layout, const std::string& indent);

/// Values that are written already, apart by commas.
std::string joined(const std::vector<std::string>& values, const std::string& comma);

/// A text as a JSON document holds it, quotes included.
std::string writtenText(std::string_view text);

/// An element as an `.ini` file holds it, in quotes where it would not survive without.
std::string writtenInitialization(const QvDatabaseCatalogField_t& field, const std::byte* pBytes);

} // namespace qv::tools
