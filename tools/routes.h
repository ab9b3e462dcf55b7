#pragma once

// Where a document holds an element of a record, whatever names the path to it had.

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "catalog_tree.h"
#include "path_tree.h"

namespace qv::tools {

/// The fields of categories as documents have them, made as they are asked for.
class FieldTrees {
public:
    const std::vector<FieldNode>& of(QvDatabaseCatalogDocument_t document,
                                     const QvDatabaseCatalogCategory_t& category) const;

private:
    mutable std::map<std::string, std::vector<FieldNode>> made_;
};

/// A member on the way to an element, and the items behind it.
struct RouteStep {
    const FieldNode* pField = nullptr;
    const FieldNode* pTwin = nullptr; ///< an older key of the same member; null where there is none
    std::vector<std::size_t> items;   ///< indices as the document counts them, outermost first
};

/// The way from a category's object to an element or a list of records.
struct Route {
    std::vector<RouteStep> steps;
    const FieldNode* pLeaf = nullptr; ///< what the element is written as; a member's own field where that is a list

    /// The begin of the record that the field of a step belongs to.
    const std::byte* base(std::size_t step, const void* pRecord) const;

    /// The first byte of what it leads to.
    const std::byte* bytes(const void* pRecord) const;

    /// The place as QvDatabaseCatalog_find takes it, behind the category's name.
    std::string path() const;
};

/// Finds the way to a part of a record among the fields of one document. Fields that a load doesn't take are passed
/// over where `isLoaded` asks for that. False where the document doesn't carry it.
bool findRoute(const std::vector<FieldNode>& fields, const Target& target, bool isLoaded, Route& route);

} // namespace qv::tools
