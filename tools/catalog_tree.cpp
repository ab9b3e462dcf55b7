#include "catalog_tree.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace qv::tools {
namespace {

/// Takes the fields of one depth from a walk that has given all before them; `field` is the walk's latest.
std::vector<FieldNode> takeFields(QvDatabaseCatalogCursor_t& cursor, QvDatabaseCatalogField_t& field, bool& isThere)
{
    std::vector<FieldNode> nodes;
    const std::size_t depth = field.depth;
    while (isThere && field.depth == depth) {
        nodes.push_back({field, {}});
        isThere = QvDatabaseCatalog_next(&cursor, &field) == 0;
        if (isThere && field.depth > depth) {
            nodes.back().fields = takeFields(cursor, field, isThere);
        }
    }
    return nodes;
}

} // namespace

const std::vector<QvDatabaseCatalogCategory_t>& categoriesOf(QvDatabaseCatalogDocument_t document)
{
    static std::vector<QvDatabaseCatalogCategory_t> lists[QvDatabaseCatalogDocument_Sum];
    std::vector<QvDatabaseCatalogCategory_t>& categories = lists[document];
    if (categories.empty()) {
        QvDatabaseCatalogCategory_t category{};
        category.size = sizeof category;
        while (QvDatabaseCatalog_category(document, categories.size(), &category) == 0) {
            categories.push_back(category);
        }
    }
    return categories;
}

std::vector<FieldNode> fieldsOf(QvDatabaseCatalogDocument_t document, const QvDatabaseCatalogCategory_t& category)
{
    QvDatabaseCatalogCursor_t cursor{};
    cursor.size = sizeof cursor;
    QvDatabaseCatalogField_t field{};
    field.size = sizeof field;
    const char* pName = category.pClass != nullptr ? category.pClass : category.pKey;
    bool isThere =
        QvDatabaseCatalog_walk(document, pName, &cursor) == 0 && QvDatabaseCatalog_next(&cursor, &field) == 0;
    return takeFields(cursor, field, isThere);
}

std::vector<QvDatabaseCatalogValue_t> valuesOf(const QvDatabaseCatalogField_t& field)
{
    std::vector<QvDatabaseCatalogValue_t> values;
    QvDatabaseCatalogValue_t value{};
    value.size = sizeof value;
    while (QvDatabaseCatalog_value(&field, values.size(), &value) == 0) {
        values.push_back(value);
    }
    return values;
}

std::size_t elementsOf(const QvDatabaseCatalogField_t& field)
{
    return field.count == QvDatabaseCatalogCount_Members ? 1 : field.extents[0] * field.extents[1] * field.extents[2];
}

bool isCarriedBy(const QvDatabaseCatalogCategory_t& category, QvDatabaseCatalogDocument_t document)
{
    return (category.documents >> document & 1U) != 0;
}

std::string shortType(const char* pRecord)
{
    std::string_view name = pRecord;
    if (name.starts_with("QvDatabase")) {
        name.remove_prefix(std::string_view{"QvDatabase"}.size());
    }
    if (name.ends_with("_t")) {
        name.remove_suffix(2);
    }
    return std::string(name);
}

std::string numberText(double number)
{
    char text[400]; // as many digits as the greatest double has in front of its point
    const auto result = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed);
    return {text, result.ptr};
}

std::string rangeText(const QvDatabaseCatalogField_t& field)
{
    if (std::isinf(field.minimum) && std::isinf(field.maximum)) {
        return "";
    }
    return (std::isinf(field.minimum) ? "" : numberText(field.minimum)) + ".." +
           (std::isinf(field.maximum) ? "" : numberText(field.maximum));
}

} // namespace qv::tools
