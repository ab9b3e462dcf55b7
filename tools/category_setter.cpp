// The part of a TextSetter that adds the objects of categories to JSON texts.

#include "text_setter.h"

#include <cstring>
#include <string_view>

#include "route_text.h"

namespace qv::tools {
namespace {

/// The last name of a place.
std::string nameOf(std::string_view place)
{
    return std::string(place.substr(place.rfind('/') + 1));
}

/// A value inside objects and lists that are named as in a JSON Pointer, outermost first; `*` stands for a list.
std::string surrounded(std::string_view names, const JsonEditor::Value& value, const Layout& layout,
                       const std::string& indent)
{
    if (names.empty()) {
        return value(layout, indent);
    }
    const std::string name(names.substr(1, names.find('/', 1) - 1));
    const std::string inner = surrounded(names.substr(name.size() + 1), value, layout, indent + layout.unit);
    return name == "*" ? '[' + inner + ']' : objectOf({writtenText(name) + layout.colon + inner}, layout, indent);
}

} // namespace

std::vector<std::string> TextSetter::rootOrder() const
{
    // As the library writes them: the setting's protocol decides which of the last two comes.
    std::vector<std::string> order;
    for (const QvDatabaseCatalogDocument_t document :
         {QvDatabaseCatalogDocument_Version, QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Simulator,
          QvDatabaseCatalogDocument_Tuning}) {
        const QvDatabaseCatalogCategory_t category = categoriesOf(document).front();
        std::string_view place = category.pPlace;
        if (place.empty()) {
            for (const FieldNode& node : fields_.of(document, category)) {
                order.emplace_back(node.field.pKey);
            }
        } else {
            place.remove_prefix(1);
            order.emplace_back(place.substr(0, place.find('/')));
        }
    }
    return order;
}

bool TextSetter::addCategory(const Target& target, std::string& error)
{
    const std::vector<Reach> reaches = pPlaces_->reaches(target);
    if (reaches.empty()) {
        error = target.path + ": no load takes this from " + (form_ == Form::Ini ? "an .ini file" : "a text document");
        return false;
    }
    // Where the document has a form already it is kept to; else the tuning document's comes last.
    Reach reach = reaches.back();
    for (const Reach& candidate : reaches) {
        const std::string_view place = candidate.category.pPlace;
        const std::string_view first = place.substr(0, place.find('/', 1));
        if (form_ == Form::Json && !pPlaces_->nodesAt(candidate.document, first).empty()) {
            reach = candidate;
        }
    }
    hasNewCategory_ = true;
    if (form_ == Form::Ini) {
        addInitialization(reach, kNoNode);
        return true;
    }
    if (document_.nodes().empty() || document_[0].type != QvJsonValueType_Object) {
        error = target.path + ": the document is no JSON object";
        return false;
    }
    JsonEditor editor(document_);
    if (!addObject(reach, editor, error)) {
        return false;
    }
    edits_ = editor.edits();
    finish();
    return true;
}

/// A load takes the class as well, where the record keeps it.
void TextSetter::noteClass(const Reach& reach)
{
    for (const FieldNode& field : fields_.of(reach.document, reach.category)) {
        if (std::string_view(field.field.pKey) == reach.category.pClassKey) {
            auto* pClass = static_cast<char*>(wanted_.record(reach.category.pKey)) + field.field.offset;
            std::strncpy(pClass, reach.category.pClass, field.field.width);
        }
    }
}

/// Adds the object of a category, and what is missing around it.
bool TextSetter::addObject(const Reach& reach, JsonEditor& editor, std::string& error)
{
    const RouteText text(reach.route, recordOf(reach));
    const std::string_view place = reach.category.pPlace;
    const bool isClass = reach.category.pClass != nullptr;
    // The innermost object or list that is there.
    std::string_view there = place;
    std::vector<NodeIndex> nodes;
    while ((nodes = pPlaces_->nodesAt(reach.document, there)).empty() || (isClass && there.size() == place.size())) {
        there = there.substr(0, there.rfind('/'));
    }
    const NodeIndex node = nodes.back();
    const std::string_view missing = place.substr(there.size());
    const std::size_t star = missing.find('*');
    if (star != std::string_view::npos && (!isClass || star + 1 != missing.size())) {
        error = "the document has no object without a class in " +
                std::string(place.substr(1, place.find('/', 1) - 1)) + ", which would hold " + reach.category.pKey;
        return false;
    }
    if (isClass) {
        noteClass(reach);
    }
    const auto object = [&](const Layout& layout, const std::string& indent) {
        return isClass ? text.classObject(reach.category, layout, indent) : text.object(0, layout, indent);
    };
    if (star == 1 && document_[node].type == QvJsonValueType_Array) {
        editor.addItems(node, {object});
        return true;
    }
    if (star == 1 || document_[node].type != QvJsonValueType_Object) {
        editor.replace(node, [&](const Layout& layout, const std::string& indent) {
            return surrounded(missing, object, layout, indent);
        });
        return true;
    }
    const std::string key(missing.substr(1, missing.find('/', 1) - 1));
    std::vector<std::string> order = rootOrder();
    if (node != 0) {
        order.clear();
        for (const QvDatabaseCatalogCategory_t& category : categoriesOf(reach.document)) {
            order.push_back(nameOf(category.pPlace));
        }
    }
    editor.addMember(node, key, order, [&](const Layout& layout, const std::string& indent) {
        return surrounded(missing.substr(key.size() + 1), object, layout, indent);
    });
    return true;
}

} // namespace qv::tools
