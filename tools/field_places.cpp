#include "field_places.h"

#include <algorithm>
#include <string_view>

#include "catalog_tree.h"

namespace qv::tools {
namespace {

void addRows(const Target& first, const Target& last, const std::string& path, std::vector<FieldRow>& rows)
{
    for (const PathNode& node : PathTree::membersOf(first)) {
        Target begin = PathTree::member(first, node);
        Target end = PathTree::member(last, node);
        std::string name = path.empty() || node.name.starts_with('[') ? path + node.name : path + '.' + node.name;
        if (!node.isGroup()) {
            rows.push_back({name, begin, end});
        }
        if (!node.isRecord() && !node.isGroup()) {
            continue;
        }
        while (begin.rank > 0) {
            const std::size_t items = std::max<std::size_t>(end.extents[0], 1); // a list on the heap has no end
            begin = PathTree::item(begin, 0);
            end = PathTree::item(end, items - 1);
            name += "[*]";
        }
        addRows(begin, end, name, rows);
    }
}

/// What is looked for: bytes of a record, or of an item of its array on the heap.
struct Wanted {
    std::size_t begin;
    std::size_t end;
    std::size_t heapOffset;
    const char* pRecord; ///< type of a record; null for what is none
};

class PlaceSearch {
public:
    PlaceSearch(const Wanted& wanted, QvDatabaseCatalogDocument_t document, const QvDatabaseCatalogCategory_t& category,
                std::vector<FieldPlace>& places)
        : wanted_(wanted), document_(document), category_(category), places_(places),
          pSeparator_(document == QvDatabaseCatalogDocument_Memory || document == QvDatabaseCatalogDocument_Image ||
                              document == QvDatabaseCatalogDocument_Initialization
                          ? "."
                          : "/")
    {
    }

    /// Looks among the fields of a record that begins at `base`; `isOnHeap` where that is an item of the array.
    void search(const std::vector<FieldNode>& nodes, std::size_t base, bool isOnHeap, bool isNumbers,
                const std::string& prefix)
    {
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const QvDatabaseCatalogField_t& field = nodes[i].field;
            std::string key = prefix + (prefix.empty() ? "" : pSeparator_) + field.pKey;
            if (isNumbers) {
                key = prefix + pSeparator_ + std::to_string(i);
            }
            if (field.pName == nullptr) {
                search(nodes[i].fields, base, isOnHeap, false, key);
            } else if (field.count == QvDatabaseCatalogCount_Heap) {
                searchHeap(nodes[i], base, key);
            } else if (isOnHeap == (wanted_.heapOffset != SIZE_MAX)) {
                searchField(nodes[i], base, isOnHeap, key);
            }
        }
    }

private:
    void found(const std::string& key, const QvDatabaseCatalogField_t& field)
    {
        places_.push_back({document_, category_, key, field});
        places_.back().field.isTwin = field.isTwin || isInTwin_;
    }

    void searchHeap(const FieldNode& node, std::size_t base, const std::string& key)
    {
        if (base + node.field.offset != wanted_.heapOffset) {
            return;
        }
        if (isSameRecord(node.field) && wanted_.begin == 0) {
            found(key, node.field);
        } else {
            search(node.fields, 0, true, false, key + any());
        }
    }

    void searchField(const FieldNode& node, std::size_t base, bool isOnHeap, const std::string& key)
    {
        const QvDatabaseCatalogField_t& field = node.field;
        const std::size_t begin = base + field.offset;
        const std::size_t size = field.width * elementsOf(field);
        if (wanted_.end <= begin || wanted_.begin >= begin + size) {
            return;
        }
        if (field.element != QvDatabaseCatalogElement_Record) {
            // A record that a document holds without an object has no place of its own.
            if (wanted_.pRecord == nullptr) {
                found(key, field);
            }
            return;
        }
        if (isSameRecord(field) && wanted_.begin == begin) {
            found(key, field);
            return;
        }
        const std::size_t item = wanted_.begin < begin ? 0 : (wanted_.begin - begin) / field.width;
        const bool isNumbers = field.count == QvDatabaseCatalogCount_Members;
        const bool wasInTwin = isInTwin_;
        isInTwin_ = wasInTwin || field.isTwin;
        search(node.fields, begin + item * field.width, isOnHeap, isNumbers,
               field.rank > 0 && !isNumbers ? key + any() : key);
        isInTwin_ = wasInTwin;
    }

    bool isSameRecord(const QvDatabaseCatalogField_t& field) const
    {
        return wanted_.pRecord != nullptr && field.pRecord != nullptr &&
               std::string_view(wanted_.pRecord) == field.pRecord;
    }

    std::string any() const { return *pSeparator_ == '.' ? "[*]" : "/*"; }

    const Wanted& wanted_;
    QvDatabaseCatalogDocument_t document_;
    const QvDatabaseCatalogCategory_t& category_;
    std::vector<FieldPlace>& places_;
    const char* pSeparator_;
    bool isInTwin_ = false; ///< within a record under an older key
};

} // namespace

std::vector<FieldRow> rowsOf(const PathCategory& category)
{
    std::vector<FieldRow> rows;
    const Target whole = PathTree::whole(category);
    addRows(whole, whole, category.name, rows);
    return rows;
}

std::vector<FieldPlace> placesOf(const Target& field, QvDatabaseCatalogDocument_t document)
{
    std::vector<FieldPlace> places;
    const QvDatabaseCatalogCategory_t& inMemory = field.pCategory->category;
    if (document != QvDatabaseCatalogDocument_Memory && !isCarriedBy(inMemory, document)) {
        return places;
    }
    const std::size_t size = std::max<std::size_t>(field.elements(), 1) * field.pNode->field.width;
    const Wanted wanted{field.offset, field.offset + size, field.heapOffset,
                        field.pNode->isRecord() ? field.pNode->field.pRecord : nullptr};
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
        if (std::string_view(category.pKey) == inMemory.pKey) {
            PlaceSearch(wanted, document, category, places).search(fieldsOf(document, category), 0, false, false, "");
        }
    }
    return places;
}

} // namespace qv::tools
