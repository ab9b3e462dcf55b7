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
        for (const PathNode& node : PathTree::membersOf(target)) {
            visitBelow(PathTree::member(target, node), pRecord, isWhole, isInUse, visit);
        }
    }
}

} // namespace

void visitLeaves(const Target& target, const void* pRecord, bool isWhole, const VisitLeaf& visit)
{
    visitBelow(target, pRecord, isWhole, true, visit);
}

} // namespace qv::tools
