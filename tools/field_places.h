#pragma once

// Where each form holds a field.

#include <cstddef>
#include <string>
#include <vector>

#include "path_tree.h"

namespace qv::tools {

/// A field of a category, as a catalog lists it: lists of records stand for all of their items.
struct FieldRow {
    std::string path; ///< with [*] where a list of records stands
    Target first;     ///< the field in the first item of each list, and in the last
    Target last;
};

/// The rows of all fields of a category in the order of the names, records before their members.
std::vector<FieldRow> rowsOf(const PathCategory& category);

/// A place of a field in a document.
struct FieldPlace {
    QvDatabaseCatalogDocument_t document;
    QvDatabaseCatalogCategory_t category; ///< as the document has it
    std::string key;                      ///< behind the category's own place; in an .ini file the whole key
    QvDatabaseCatalogField_t field;       ///< as the document holds it
};

/// The places of a field in that document; several where it has other keys too, or one for each element.
std::vector<FieldPlace> placesOf(const Target& field, QvDatabaseCatalogDocument_t document);

} // namespace qv::tools
