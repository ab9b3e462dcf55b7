#include "route_text.h"

#include <string_view>

namespace qv::tools {

std::string RouteText::object(std::size_t step, const Layout& layout, const std::string& indent) const
{
    return objectOf({keyed(step, layout, indent + layout.unit)}, layout, indent);
}

std::string RouteText::classObject(const QvDatabaseCatalogCategory_t& category, const Layout& layout,
                                   const std::string& indent) const
{
    const std::string name = writtenText(category.pClassKey) + layout.colon + writtenText(category.pClass);
    return objectOf({name, keyed(0, layout, indent + layout.unit)}, layout, indent);
}

std::string RouteText::keyed(std::size_t step, const Layout& layout, const std::string& indent) const
{
    return writtenText(route_.steps[step].pField->field.pKey) + layout.colon + member(step, layout, indent);
}

std::string RouteText::item(std::size_t step, std::size_t dimension, std::size_t index, const Layout& layout,
                            const std::string& indent) const
{
    const FieldNode& node = *route_.steps[step].pField;
    if (!node.fields.empty() && node.field.rank == 1) {
        // A load leaves a record as it is whose object is empty.
        const bool leadsOn = index == route_.steps[step].items[0] && step + 1 < route_.steps.size();
        return leadsOn ? object(step + 1, layout, indent) : "{}";
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
        return object(step + 1, layout, indent);
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
