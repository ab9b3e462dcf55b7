#include <set>

#include "../leaves.h"
#include "content.h"
#include "html.h"

namespace qv::tools::page {
namespace {

constexpr std::size_t kShownItems = 24;

/// An element of an array on the heap, which may be shorter in another set; empty where it isn't there.
std::string heapValueOf(const Target& leaf, const void* pRecord)
{
    QvDatabaseCatalogPlace_t place{};
    place.size = sizeof place;
    std::size_t length = 0;
    if (QvDatabaseCatalog_find(leaf.pCategory->document, leaf.path.c_str(), &place) != 0 ||
        QvDatabaseCatalog_text(&place, pRecord, nullptr, 0, &length) != 0) {
        return "";
    }
    std::string text(length + 1, '\0');
    QvDatabaseCatalog_text(&place, pRecord, text.data(), text.size(), &length);
    text.resize(length);
    return text;
}

std::string valueOf(const Target& leaf, const Session& session)
{
    const void* pRecord = session.record(leaf.pCategory->category.pKey);
    if (leaf.heapOffset != SIZE_MAX && leaf.isElement()) {
        return heapValueOf(leaf, pRecord);
    }
    if (leaf.isElement()) {
        return textOf(leaf, pRecord);
    }
    const std::byte* pBytes = bytesOf(leaf, pRecord);
    const std::size_t number = leaf.heapOffset == SIZE_MAX ? leaf.elements() : usedItems(leaf, pRecord);
    std::string text;
    for (std::size_t i = 0; pBytes != nullptr && i < number; ++i) {
        if (i == kShownItems) {
            return text + ", … (" + std::to_string(number) + ')';
        }
        text += (i == 0 ? "" : ", ") + textAt(leaf.pNode->field, pBytes + i * leaf.pNode->field.width);
    }
    return text;
}

bool isShown(const Target& leaf)
{
    const QvDatabaseCatalogField_t& field = leaf.pNode->field;
    return field.element != QvDatabaseCatalogElement_Pointer && field.role != QvDatabaseCatalogRole_Handle;
}

std::string row(const Target& leaf, std::span<const Session* const> sides, const Session& fresh,
                const std::string& prefix)
{
    const QvDatabaseCatalogField_t& field = leaf.pNode->field;
    const std::string value = valueOf(leaf, *sides[0]);
    const std::string other = sides.size() == 2 ? valueOf(leaf, *sides[1]) : value;
    const std::string standard = valueOf(leaf, fresh);
    std::string text = "<tr id=\"" + idOf(leaf.path) + '"' +
                       (value != standard || other != standard ? " class=\"set\"" : "") + "><td><code>" +
                       escaped(leaf.path.substr(prefix.size())) + "</code></td><td>";
    text += other == value
                ? escaped(value)
                : "<span class=\"a\">" + escaped(value) + "</span> <span class=\"b\">" + escaped(other) + "</span>";
    if (field.pUnit != nullptr) {
        text += " <small>" + escaped(field.pUnit) + "</small>";
    }
    return text + "</td><td>" + (value != standard ? escaped(standard) : "") + "</td><td>" + meaningOf(field.pMeaning) +
           "</td></tr>";
}

} // namespace

std::string tablesOf(const PathTree& tree, std::span<const Session* const> sides, const Session& fresh,
                     const Pictures& pictures)
{
    std::string text;
    for (const QvDatabaseCatalogCategory_t& key : tree.keys()) {
        const PathCategory& category = tree.category(key.pKey);
        const std::string prefix = category.name.empty() ? "" : category.name + '.';
        std::string rows;
        std::size_t number = 0;
        std::set<std::string> shown;
        for (const Session* pSession : sides) {
            // Of two sets, what only the second has in use stands behind.
            visitLeaves(PathTree::whole(category), pSession->record(key.pKey), false, [&](const Target& leaf, bool) {
                const std::string place = placeOf(pictures, leaf);
                if (place != idOf(leaf.path) || pictures.isFigure(place) || !isShown(leaf) ||
                    !shown.insert(place).second) {
                    return;
                }
                rows += row(leaf, sides, fresh, prefix);
                ++number;
            });
        }
        if (number > 0) {
            text += "<details class=\"values\"><summary><code>" +
                    escaped(category.name.empty() ? "calibration" : category.name) + "</code> " +
                    meaningOf(key.pMeaning, true) + " <small>" + std::to_string(number) +
                    " fields</small></summary><table><thead><tr><th>path</th><th>value</th><th>default</"
                    "th><th>meaning</th></tr>"
                    "</thead><tbody>" +
                    rows + "</tbody></table></details>";
        }
    }
    return text;
}

} // namespace qv::tools::page
