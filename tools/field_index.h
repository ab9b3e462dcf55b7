#pragma once

// Every member of every record, with the places where documents hold it.

#include <string>
#include <vector>

#include "catalog_tree.h"

namespace qv::tools {

/// A place of a member in one document.
struct Stand {
    QvDatabaseCatalogDocument_t document;
    std::string key;                ///< behind those of the records around it; several where objects stand between them
    QvDatabaseCatalogField_t field; ///< as the document holds it
};

/// A member of a record as C has it, the members of its record, and the places of both.
struct Member {
    QvDatabaseCatalogField_t field;
    std::vector<Member> members;
    std::vector<Stand> stands;
    bool isBehindPointer = false; ///< in an array on the heap; offsets count from its items
};

struct IndexedCategory {
    QvDatabaseCatalogCategory_t category;             ///< as memory has it
    std::vector<QvDatabaseCatalogCategory_t> entries; ///< as documents have it, beside `documents`
    std::vector<QvDatabaseCatalogDocument_t> documents;
    std::vector<Member> members;
};

/// All categories in the order of registration.
std::vector<IndexedCategory> indexFields();

} // namespace qv::tools
