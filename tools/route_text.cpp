#include "route_text.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace qv::tools {
namespace {

constexpr std::size_t kNoStep = SIZE_MAX;

bool isZero(const std::byte* pBytes, std::size_t number)
{
    return std::all_of(pBytes, pBytes + number, [](std::byte byte) { return byte == std::byte{0}; });
}

/// Whether a load leaves something else than what the record holds where the document lacks the member: a counter that
/// becomes 0, numbers of a list that do.
bool isCleared(const FieldNode& node, const std::byte* pBase)
{
    const QvDatabaseCatalogField_t& field = node.field;
    const std::byte* pBytes = field.pName == nullptr ? pBase : pBase + field.offset;
    switch (field.count) {
    case QvDatabaseCatalogCount_Members:
        return !isZero(pBytes, field.width);
    case QvDatabaseCatalogCount_Measured:
    case QvDatabaseCatalogCount_Schedule:
    case QvDatabaseCatalogCount_Heap:
        return !isZero(pBase + field.counterOffset, field.counterWidth);
    case QvDatabaseCatalogCount_Whole:
    case QvDatabaseCatalogCount_Counted:
        return false; // items that the document lacks are not looked at
    default:
        break;
    }
    const std::size_t items = field.rank == 0 ? 1 : field.extents[0];
    for (std::size_t i = 0; i < items && !node.fields.empty(); ++i) {
        for (const FieldNode& inner : node.fields) {
            if (inner.field.direction != QvDatabaseCatalogDirection_WriteOnly &&
                isCleared(inner, pBytes + i * field.width)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

std::vector<std::string> RouteText::members(std::size_t step, const std::vector<FieldNode>& fields,
                                            const std::byte* pBase, const Layout& layout,
                                            const std::string& indent) const
{
    std::vector<std::string> texts;
    for (const FieldNode& node : fields) {
        if (node.field.isTwin || node.field.direction == QvDatabaseCatalogDirection_WriteOnly) {
            continue;
        }
        const bool leadsOn = step != kNoStep && route_.steps[step].pField == &node;
        if (leadsOn || isCleared(node, pBase)) {
            texts.push_back(writtenText(node.field.pKey) + layout.colon +
                            (leadsOn ? member(step, layout, indent) : writtenMember(node, pBase, layout, indent)));
        }
    }
    return texts;
}

std::string RouteText::object(std::size_t step, const std::vector<FieldNode>& fields, const Layout& layout,
                              const std::string& indent) const
{
    return objectOf(members(step, fields, route_.base(step, pRecord_), layout, indent + layout.unit), layout, indent);
}

std::string RouteText::classObject(const std::vector<FieldNode>& fields, const QvDatabaseCatalogCategory_t& category,
                                   const Layout& layout, const std::string& indent) const
{
    std::vector<std::string> texts = members(0, fields, pRecord_, layout, indent + layout.unit);
    texts.insert(texts.begin(), writtenText(category.pClassKey) + layout.colon + writtenText(category.pClass));
    return objectOf(texts, layout, indent);
}

std::string RouteText::item(std::size_t step, std::size_t dimension, std::size_t index, const Layout& layout,
                            const std::string& indent) const
{
    const FieldNode& node = *route_.steps[step].pField;
    if (!node.fields.empty() && node.field.rank == 1) {
        const bool leadsOn = index == route_.steps[step].items[0] && step + 1 < route_.steps.size();
        const std::byte* pItem = route_.base(step, pRecord_) + node.field.offset + index * node.field.width;
        return objectOf(members(leadsOn ? step + 1 : kNoStep, node.fields, pItem, layout, indent + layout.unit), layout,
                        indent);
    }
    const std::byte* pList = route_.base(step, pRecord_) + node.field.offset;
    for (std::size_t i = 0; i < dimension; ++i) {
        pList += route_.steps[step].items[i] * itemBytes(node.field, i);
    }
    return writtenItem(node, pList + index * itemBytes(node.field, dimension), dimension, layout, indent);
}

std::string RouteText::member(std::size_t step, const Layout& layout, const std::string& indent) const
{
    const FieldNode& node = *route_.steps[step].pField;
    const bool isRecord = !node.fields.empty() && step + 1 < route_.steps.size();
    if (isRecord && node.field.rank == 0) {
        return object(step + 1, node.fields, layout, indent);
    }
    const bool isCounted = node.field.counterWidth != 0 && node.field.count != QvDatabaseCatalogCount_Counted;
    if (!isRecord || isCounted || node.field.rank > 1) {
        return writtenMember(node, route_.base(step, pRecord_), layout, indent);
    }
    std::vector<std::string> items;
    for (std::size_t i = 0; i <= route_.steps[step].items[0]; ++i) {
        items.push_back(item(step, 0, i, layout, indent + layout.unit));
    }
    return '[' + joined(items, layout.comma) + ']';
}

} // namespace qv::tools
