#include "same_records.h"

#include <cstring>

namespace qv::tools {
namespace {

class Comparison {
public:
    Comparison(const void* pExpected, const void* pFound, bool asDocuments, FirstDifference& difference)
        : pExpected_(pExpected), pFound_(pFound), asDocuments_(asDocuments), difference_(difference)
    {
    }

    bool isSame(const Target& target) const
    {
        const QvDatabaseCatalogField_t* pField = target.pNode == nullptr ? nullptr : &target.pNode->field;
        if (pField != nullptr &&
            (pField->element == QvDatabaseCatalogElement_Pointer || pField->role == QvDatabaseCatalogRole_Handle)) {
            return true;
        }
        if (target.rank > 0) {
            return isSameList(target);
        }
        if (target.isElement()) {
            return isSameElement(target);
        }
        for (const PathNode& node : PathTree::membersOf(target)) {
            if ((!asDocuments_ || !node.isOnlyInMemory) && !isSame(PathTree::member(target, node))) {
                return false;
            }
        }
        return true;
    }

private:
    bool isSameList(const Target& list) const
    {
        const std::size_t expected = usedItems(list, pExpected_);
        const std::size_t found = usedItems(list, pFound_);
        if (expected != found) {
            difference_ = {list.path, std::to_string(expected) + " items", std::to_string(found) + " items"};
            return false;
        }
        for (std::size_t i = 0; i < comparedItems(list, expected); ++i) {
            if (!isSame(PathTree::item(list, i))) {
                return false;
            }
        }
        return true;
    }

    /// Rows behind those that are counted hold whatever an earlier load left; a counter of its own is a field like any
    /// other, and its list counts whole.
    static std::size_t comparedItems(const Target& list, std::size_t used)
    {
        return list.pNode->field.count == QvDatabaseCatalogCount_Counted ? list.extents[0] : used;
    }

    bool isSameElement(const Target& element) const
    {
        const std::byte* pExpected = bytesOf(element, pExpected_);
        const std::byte* pFound = bytesOf(element, pFound_);
        const bool isText = element.pNode->field.element == QvDatabaseCatalogElement_Text;
        if (std::memcmp(pExpected, pFound, element.pNode->field.width) == 0 ||
            (isText && textOf(element, pExpected_) == textOf(element, pFound_))) {
            return true;
        }
        difference_ = {element.path, valueText(element, pExpected_), valueText(element, pFound_)};
        return false;
    }

    const void* pExpected_;
    const void* pFound_;
    bool asDocuments_;
    FirstDifference& difference_;
};

} // namespace

bool isSame(const PathTree& tree, const Session& expected, const Session& found, bool asDocuments,
            FirstDifference& difference)
{
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        const void* pExpected = expected.record(key.pKey);
        const void* pFound = found.record(key.pKey);
        // Padding and addresses may differ; most records don't in anything.
        if (std::memcmp(pExpected, pFound, key.recordSize) != 0 &&
            !Comparison(pExpected, pFound, asDocuments, difference).isSame(PathTree::whole(tree.category(key.pKey)))) {
            return false;
        }
    }
    return true;
}

bool isSame(const Target& target, const Session& expected, const Session& found, FirstDifference& difference)
{
    const char* pKey = target.pCategory->category.pKey;
    return Comparison(expected.record(pKey), found.record(pKey), false, difference).isSame(target);
}

} // namespace qv::tools
