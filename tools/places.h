#pragma once

// Where a document holds a field, and how far it goes where it doesn't.

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "document.h"
#include "routes.h"

namespace qv::tools {

/// How far a document goes along the way to a field.
struct Reach {
    QvDatabaseCatalogDocument_t document = QvDatabaseCatalogDocument_Memory;
    QvDatabaseCatalogCategory_t category{}; ///< as that document has it
    Route route;
    NodeIndex node = kNoNode; ///< the last one that is there; kNoNode: not even the category's object
    std::size_t step = 0;     ///< of the route: the member that isn't there, or whose items end too early
    std::size_t items = 0;    ///< indices of that step that could be followed
    bool hasMember = false;   ///< `node` is the value of the step's member, or one of its items
    bool isWhole = false;     ///< the field is there
};

/// The fields of one document without faults.
class Places {
public:
    Places(const Document& document, const FieldTrees& fields) : document_(document), fields_(fields) {}

    /// The place from which a load takes a part of a record; where there is none, the object that could hold it. False
    /// where even that is missing.
    bool find(const Target& target, Reach& found) const;

    /// The ways to a target in all categories that a document of this form may hold and that a load takes, in the order
    /// of loading. None where the form doesn't carry it.
    std::vector<Reach> reaches(const Target& target) const;

    /// The nodes at a JSON Pointer of the catalog whose `*` is any item without a class.
    std::vector<NodeIndex> nodesAt(QvDatabaseCatalogDocument_t document, std::string_view place) const;

    /// What a document of this form is made of, in the order of loading.
    std::vector<QvDatabaseCatalogDocument_t> documents() const;

private:
    /// A category that the document may hold, and its objects in the order of loading.
    struct Entry {
        QvDatabaseCatalogDocument_t document;
        QvDatabaseCatalogCategory_t category;
        std::vector<NodeIndex> objects;
    };

    const std::vector<Entry>& entriesOf(const char* pKey) const;
    std::vector<NodeIndex> objectsOf(QvDatabaseCatalogDocument_t document,
                                     const QvDatabaseCatalogCategory_t& category) const;
    void follow(Reach& reach) const;
    NodeIndex item(NodeIndex list, std::size_t index) const;

    const Document& document_;
    const FieldTrees& fields_;
    mutable std::map<std::string, std::vector<Entry>> entries_;
    mutable NodeIndex lastList_ = kNoNode; ///< where an item was looked for last, and what was found
    mutable NodeIndex lastItem_ = kNoNode;
};

} // namespace qv::tools
