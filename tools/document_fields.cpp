#include "document_fields.h"

#include <algorithm>
#include <string_view>

#include "document_binder.h"

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;

std::size_t bytesOf(const CatalogField& field, std::size_t open)
{
    std::size_t bytes = field.width;
    for (std::size_t i = field.rank - std::min(open, field.rank); i < field.rank; ++i) {
        bytes *= field.extents[i];
    }
    return bytes;
}

std::size_t bytesOf(const Target& target)
{
    return target.pNode == nullptr ? target.pCategory->category.recordSize
                                   : target.pNode->field.width * target.elements();
}

bool isRecord(const CatalogField& field)
{
    return field.element == QvDatabaseCatalogElement_Record;
}

bool isSameRecord(const CatalogField& left, const CatalogField& right)
{
    return left.pRecord != nullptr && right.pRecord != nullptr && std::string_view(left.pRecord) == right.pRecord;
}

/// Whether a target is the same part of a record as what is bound to a field.
bool isSame(const Target& target, const Bound& bound)
{
    if (bound.pField == nullptr || target.pNode == nullptr) {
        return bound.pField == nullptr && target.pNode == nullptr;
    }
    const CatalogField& field = bound.pField->field;
    const CatalogField& wanted = target.pNode->field;
    if (field.pName == nullptr || wanted.pName == nullptr) {
        return field.pName == nullptr && wanted.pName == nullptr && std::string_view(field.pKey) == wanted.pKey;
    }
    if (isRecord(field) != isRecord(wanted) || (isRecord(field) && !isSameRecord(field, wanted))) {
        return false;
    }
    const bool isHeap = wanted.count == QvDatabaseCatalogCount_Heap && target.rank == 1;
    return isHeap ? bound.open == 1 : target.rank == bound.open && bytesOf(target) == bytesOf(bound);
}

/// Goes down from a record to the part that begins at an offset and is what is bound there.
class Descent {
public:
    Descent(const Bound& bound, std::size_t offset) : bound_(bound), offset_(offset) {}

    bool go(const Target& from, Target& found) const
    {
        if (from.heapOffset == heapOffset() && from.offset == offset_ && isSame(from, bound_)) {
            found = from;
            return true;
        }
        if (from.rank > 0) {
            return goIntoList(from, found);
        }
        if (from.isElement()) {
            return false;
        }
        for (const PathNode& node : PathTree::membersOf(from)) {
            const Target member = PathTree::member(from, node);
            if (isAround(member) && go(member, found)) {
                return true;
            }
        }
        return false;
    }

private:
    std::size_t heapOffset() const { return bound_.heapOffset == UINT32_MAX ? SIZE_MAX : bound_.heapOffset; }

    bool isAround(const Target& target) const
    {
        if (target.pNode->isGroup()) {
            return true;
        }
        if (target.heapOffset != heapOffset()) {
            return false;
        }
        const bool isHeap = target.pNode->field.count == QvDatabaseCatalogCount_Heap;
        return offset_ >= target.offset && (isHeap || offset_ < target.offset + bytesOf(target));
    }

    bool goIntoList(const Target& list, Target& found) const
    {
        const std::size_t item = list.pNode->field.width * list.extents[1] * list.extents[2];
        return item != 0 && offset_ >= list.offset && go(PathTree::item(list, (offset_ - list.offset) / item), found);
    }

    const Bound& bound_;
    std::size_t offset_;
};

/// The field among those of a record, and the records in it, that begins at an offset.
const CatalogField* fieldAt(const std::vector<FieldNode>& fields, std::size_t offset)
{
    for (const FieldNode& node : fields) {
        const std::size_t bytes = bytesOf(node.field, node.field.rank);
        if (offset >= node.field.offset && offset < node.field.offset + bytes) {
            return node.fields.empty() ? &node.field
                                       : fieldAt(node.fields, (offset - node.field.offset) % node.field.width);
        }
    }
    return nullptr;
}

} // namespace

std::size_t bytesOf(const Bound& bound)
{
    return bytesOf(bound.pField->field, bound.open);
}

DocumentFields::DocumentFields(const Document& document) : pDocument_(&document)
{
    FieldBinder(*this).bind();
}

NodeIndex DocumentFields::find(const Target& target) const
{
    NodeIndex found = kNoNode;
    std::uint32_t order = 0;
    const auto consider = [&](NodeIndex node, const Bound& bound) {
        const bool isRead = bound.fate == Fate::Taken || bound.fate == Fate::Kept || bound.fate == Fate::WrongKind;
        const std::size_t heapOffset = bound.heapOffset == UINT32_MAX ? SIZE_MAX : bound.heapOffset;
        if (isRead && bound.hasCategory() && bound.order > order && bound.offset == target.offset &&
            heapOffset == target.heapOffset && std::string_view(key(bound)) == target.pCategory->category.pKey &&
            isSame(target, bound)) {
            found = node;
            order = bound.order;
        }
    };
    for (NodeIndex node = 0; node < bounds_.size(); ++node) {
        consider(node, bounds_[node]);
    }
    for (const auto& [node, bound] : seconds_) {
        consider(node, bound);
    }
    return found;
}

Target DocumentFields::target(const Bound& bound, const PathTree& tree) const
{
    return locate(tree.category(key(bound)), bound);
}

Target DocumentFields::locate(const PathCategory& category, const Bound& bound)
{
    Target found;
    Target whole = PathTree::whole(category);
    if (bound.pField == nullptr) {
        return whole;
    }
    return Descent(bound, bound.offset).go(whole, found) ? found : Target();
}

std::string DocumentFields::path(NodeIndex node, const PathTree& tree) const
{
    const Bound& bound = bounds_[node];
    if (bound.hasCategory() && bound.fate != Fate::PastEnd && bound.fate != Fate::Doubled) {
        if (const Target found = target(bound, tree); found.pCategory != nullptr) {
            return found.path;
        }
    }
    const DocumentNode& value = (*pDocument_)[node];
    if (value.parent == kNoNode) {
        return "";
    }
    if (value.key.isEmpty()) {
        return path(value.parent, tree) + '[' + std::to_string(value.index) + ']';
    }
    // `tuning` is left out of paths.
    const Bound& parent = bounds_[value.parent];
    const bool isInTuning = parent.fate == Fate::Frame && pDocument_->key(value.parent) == "tuning";
    const std::string before = isInTuning ? "" : path(value.parent, tree);
    return (before.empty() ? "" : before + '.') + std::string(pDocument_->key(node));
}

bool DocumentFields::isInRows(const Bound& bound) const
{
    // In memory such a list has one dimension.
    const std::vector<FieldNode> members = fieldsOf(QvDatabaseCatalogDocument_Memory, category(bound).category);
    const CatalogField* pField = fieldAt(members, bound.offset);
    return pField != nullptr && pField->rank < bound.pField->field.rank;
}

} // namespace qv::tools
