#pragma once

// What a load takes from a text document: for each value the field that it goes into, or why it goes into none.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalog_tree.h"
#include "document.h"
#include "path_tree.h"

namespace qv::tools {

/// What becomes of a value at a load.
enum class Fate : std::uint8_t {
    Unseen,    ///< stands in something that is passed over
    Frame,     ///< only holds others: the document itself, `tuning`, a list of classes
    Taken,     ///< is read into its field; a record or list, as far as what it holds is
    Kept,      ///< null or empty: the field keeps its value, but for the counter of a list
    Unknown,   ///< no such category, class, member, section or key
    Doubled,   ///< the same key stands there again, further down
    Unread,    ///< known, and passed over here: calibration without a header, an older key beside the newer one
    Written,   ///< a save writes it and no load reads it
    WrongKind, ///< none of the kinds that the field takes
    PastEnd    ///< an item behind the end of the field's list, or of the one that bounds it
};

/// A category as one document has it.
struct DocumentCategory {
    QvDatabaseCatalogDocument_t document;
    QvDatabaseCatalogCategory_t category;
    std::vector<FieldNode> fields; ///< empty until something of it was met
};

/// Where a value goes.
struct Bound {
    const FieldNode* pField = nullptr;     ///< null for a category as a whole, and for what has no field
    std::uint32_t offset = 0;              ///< bytes from the record's begin, or from that of the array on the heap
    std::uint32_t heapOffset = UINT32_MAX; ///< place of the pointer to the array that `offset` counts in
    /// Loads go up these numbers: of two for the same field the greater wins. Of what is doubled, the node that stands
    /// there again.
    std::uint32_t order = 0;
    std::uint16_t category = UINT16_MAX; ///< of DocumentFields::category; UINT16_MAX: none
    std::uint8_t open = 0;               ///< dimensions of the list that this value holds; 0 for an element or item
    Fate fate = Fate::Unseen;

    bool hasCategory() const { return category != UINT16_MAX; }
    bool isTaken() const { return fate == Fate::Taken; }
};

/// The kinds of text documents, which content tells from each other.
enum class DocumentKind { Text, Meta, SimulatorMeta, Ini };

class DocumentFields {
public:
    explicit DocumentFields(const Document& document);

    const Document& document() const { return *pDocument_; }
    DocumentKind kind() const { return kind_; }

    /// One for each node of the document.
    const Bound& operator[](NodeIndex node) const { return bounds_[node]; }
    const DocumentCategory& category(const Bound& bound) const { return *categories_[bound.category]; }
    const char* key(const Bound& bound) const { return category(bound).category.pKey; }

    /// Values that go into a second field as well, which two records share a key for.
    const std::vector<std::pair<NodeIndex, Bound>>& seconds() const { return seconds_; }

    /// The categories that may stand in such a document, in the order in which they are loaded.
    const std::vector<std::unique_ptr<DocumentCategory>>& categories() const { return categories_; }

    /// Where a load takes a target from: an element, a list, a record or a category. The last one that a load reads;
    /// also one of the wrong kind, or one that leaves the field as it is. kNoNode where the document doesn't hold it.
    NodeIndex find(const Target& target) const;

    /// The path of a value under the names of the tree; that of what is unknown by the keys of the document.
    std::string path(NodeIndex node, const PathTree& tree) const;

    /// What a field is in the tree; an empty path where the tree has no such place.
    Target target(const Bound& bound, const PathTree& tree) const;

    /// The same in a category's record.
    static Target locate(const PathCategory& category, const Bound& bound);

    /// The list that stands in rows whose own lengths tell where each begins, and that runs on behind its field.
    bool isInRows(const Bound& bound) const;

private:
    friend class FieldBinder;

    const Document* pDocument_;
    DocumentKind kind_ = DocumentKind::Text;
    std::vector<Bound> bounds_;
    std::vector<std::pair<NodeIndex, Bound>> seconds_;
    std::vector<std::unique_ptr<DocumentCategory>> categories_;
};

/// Bytes of all that a bound value stands for.
std::size_t bytesOf(const Bound& bound);

} // namespace qv::tools
