#include "routes.h"

#include <cstring>

namespace qv::tools {
namespace {

/// What is looked for, and where.
struct Wanted {
    std::size_t offset;
    std::size_t heapOffset; ///< of the array on the heap that it is in; SIZE_MAX outside of all
    std::size_t length;
    bool isRecord; ///< a list of records or a record, no element
};

std::size_t bytesOf(const QvDatabaseCatalogField_t& field)
{
    return field.width * field.extents[0] * field.extents[1] * field.extents[2];
}

/// Indices of an element or item, so many bytes behind the begin of the list.
std::vector<std::size_t> itemsAt(const QvDatabaseCatalogField_t& field, std::size_t bytes)
{
    std::size_t index = bytes / field.width;
    std::vector<std::size_t> items(field.rank);
    for (std::size_t i = field.rank; i-- > 0;) {
        const std::size_t extent = i == 0 ? SIZE_MAX : field.extents[i];
        items[i] = index % extent;
        index /= extent;
    }
    return items;
}

bool search(const std::vector<FieldNode>& fields, const Wanted& wanted, std::size_t base, bool isLoaded, Route& route);

/// Goes on in the record or list of records that a field is.
bool enter(const FieldNode& node, const Wanted& wanted, std::size_t begin, bool isLoaded, Route& route)
{
    const QvDatabaseCatalogField_t& field = node.field;
    if (wanted.isRecord && wanted.offset == begin && wanted.length == bytesOf(field)) {
        route.pLeaf = &node;
        return true;
    }
    std::vector<std::size_t>& items = route.steps.back().items;
    const std::size_t item = (wanted.offset - begin) / field.width;
    if (field.count == QvDatabaseCatalogCount_Members) {
        for (std::size_t i = 0; i < node.fields.size(); ++i) {
            if (wanted.offset == begin + node.fields[i].field.offset) {
                items.push_back(i);
                route.pLeaf = &node.fields[i];
                return true;
            }
        }
        return false;
    }
    if (field.rank > 0) {
        items = itemsAt(field, wanted.offset - begin);
    }
    if (wanted.isRecord && wanted.offset == begin + item * field.width && wanted.length == field.width) {
        route.pLeaf = &node;
        return true;
    }
    return search(node.fields, wanted, begin + item * field.width, isLoaded, route);
}

bool search(const std::vector<FieldNode>& fields, const Wanted& wanted, std::size_t base, bool isLoaded, Route& route)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const FieldNode& node = fields[i];
        const QvDatabaseCatalogField_t& field = node.field;
        if (field.isTwin || (isLoaded && field.direction == QvDatabaseCatalogDirection_WriteOnly)) {
            continue;
        }
        RouteStep step{&node, nullptr, {}};
        if (i + 1 < fields.size() && fields[i + 1].field.isTwin) {
            step.pTwin = &fields[i + 1];
        }
        route.steps.push_back(step);
        const std::size_t begin = base + field.offset;
        if (field.pName == nullptr) {
            if (search(node.fields, wanted, base, isLoaded, route)) {
                return true;
            }
        } else if (field.count == QvDatabaseCatalogCount_Heap) {
            Wanted inside = wanted;
            inside.heapOffset = SIZE_MAX;
            if (wanted.heapOffset == begin && enter(node, inside, 0, isLoaded, route)) {
                return true;
            }
        } else if (wanted.heapOffset == SIZE_MAX && wanted.offset >= begin &&
                   wanted.offset + wanted.length <= begin + bytesOf(field)) {
            if (!node.fields.empty()) {
                if (enter(node, wanted, begin, isLoaded, route)) {
                    return true;
                }
            } else if (!wanted.isRecord && wanted.length == field.width) {
                route.steps.back().items = itemsAt(field, wanted.offset - begin);
                route.pLeaf = &node;
                return true;
            }
        }
        route.steps.pop_back();
    }
    return false;
}

} // namespace

const std::vector<FieldNode>& FieldTrees::of(QvDatabaseCatalogDocument_t document,
                                             const QvDatabaseCatalogCategory_t& category) const
{
    const char* pName = category.pClass != nullptr ? category.pClass : category.pKey;
    const std::string name = std::to_string(document) + pName;
    const auto found = made_.find(name);
    return found != made_.end() ? found->second : made_.emplace(name, fieldsOf(document, category)).first->second;
}

namespace {

/// The begin of a member's bytes in its record, or of the array on the heap that it points at.
const std::byte* beginOf(const QvDatabaseCatalogField_t& field, const std::byte* pBase)
{
    const std::byte* pMember = pBase + field.offset;
    if (field.count != QvDatabaseCatalogCount_Heap) {
        return pMember;
    }
    const std::byte* pHeap = nullptr;
    std::memcpy(&pHeap, pMember, sizeof pHeap);
    return pHeap;
}

std::size_t offsetOf(const RouteStep& step)
{
    std::size_t item = 0;
    for (std::size_t i = 0; i < step.items.size(); ++i) {
        item = item * step.pField->field.extents[i] + step.items[i];
    }
    return item * step.pField->field.width;
}

} // namespace

const std::byte* Route::base(std::size_t step, const void* pRecord) const
{
    const auto* pBase = static_cast<const std::byte*>(pRecord);
    for (std::size_t i = 0; i < step; ++i) {
        const QvDatabaseCatalogField_t& field = steps[i].pField->field;
        if (field.pName != nullptr) { // a group's members are those of the record around it
            pBase = beginOf(field, pBase) + offsetOf(steps[i]);
        }
    }
    return pBase;
}

const std::byte* Route::bytes(const void* pRecord) const
{
    const RouteStep& last = steps.back();
    const std::byte* pBegin = beginOf(last.pField->field, base(steps.size() - 1, pRecord));
    return pBegin + (pLeaf == last.pField ? offsetOf(last) : pLeaf->field.offset);
}

std::string Route::path() const
{
    std::string path;
    for (const RouteStep& step : steps) {
        path += (path.empty() ? "" : ".") + std::string(step.pField->field.pKey);
        for (const std::size_t item : step.items) {
            path += '[' + std::to_string(item) + ']';
        }
    }
    return path;
}

bool findRoute(const std::vector<FieldNode>& fields, const Target& target, bool isLoaded, Route& route)
{
    const Wanted wanted{target.offset, target.heapOffset, target.pNode->field.width * target.elements(),
                        !target.isElement()};
    route = {};
    return search(fields, wanted, 0, isLoaded, route);
}

} // namespace qv::tools
