#include "leaves.h"

namespace qv::tools {
namespace {

void visitBelow(const Target& target, const void* pRecord, bool isWhole, bool isInUse, const VisitLeaf& visit)
{
    if (target.isElement() || (target.rank > 0 && !target.pNode->isRecord())) {
        visit(target, isInUse);
    } else if (target.rank > 0) {
        const std::size_t used = usedItems(target, pRecord);
        for (std::size_t i = 0; i < (isWhole ? target.extents[0] : used); ++i) {
            visitBelow(PathTree::item(target, i), pRecord, isWhole, isInUse && i < used, visit);
        }
    } else {
        const std::vector<PathNode>& members = PathTree::membersOf(target);
        for (const PathNode& node : members) {
            if (!isOtherKey(members, node)) {
                visitBelow(PathTree::member(target, node), pRecord, isWhole, isInUse, visit);
            }
        }
    }
}

} // namespace

void visitLeaves(const Target& target, const void* pRecord, bool isWhole, const VisitLeaf& visit)
{
    visitBelow(target, pRecord, isWhole, true, visit);
}

bool isOtherKey(const std::vector<PathNode>& members, const PathNode& member)
{
    if (member.field.direction != QvDatabaseCatalogDirection_ReadOnly || member.isGroup()) {
        return false;
    }
    for (const PathNode& node : members) {
        if (&node == &member) {
            break;
        }
        if (!node.isGroup() && node.field.offset == member.field.offset) {
            return true;
        }
    }
    return false;
}

Target elementOf(const Target& list, std::size_t index)
{
    Target target = list;
    for (std::size_t size = list.elements(); target.rank > 0; index %= size) {
        size /= target.extents[0];
        target = PathTree::item(target, index / size);
    }
    return target;
}

} // namespace qv::tools
