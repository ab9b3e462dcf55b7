#include "text_setter.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#include "bytes.h"
#include "route_text.h"

namespace qv::tools {
namespace {

using Field = QvDatabaseCatalogField_t;

/// Whether an integer of a document is that of a field, with the sign of either.
bool isSameInteger(std::int64_t number, const Field& field, const std::byte* pBytes)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, pBytes, std::min(field.width, sizeof bits));
    const unsigned shift = 64 - static_cast<unsigned>(field.width) * 8;
    return number == static_cast<std::int64_t>(bits) || number == static_cast<std::int64_t>(bits << shift) >> shift;
}

bool isHeldByJson(const Document& document, NodeIndex index, const Field& field, const std::byte* pBytes)
{
    const DocumentNode& node = document[index];
    const double number = document.number(index);
    const bool isNumber =
        !node.isContainer() && node.type != QvJsonValueType_Null && node.type != QvJsonValueType_String;
    switch (field.written) {
    case QvDatabaseCatalogElement_Text:
        return node.type == QvJsonValueType_String && document.string(index) == charactersOf(field, pBytes);
    case QvDatabaseCatalogElement_Float:
        return isNumber && static_cast<float>(number) == as<float>(pBytes);
    case QvDatabaseCatalogElement_Double:
        return isNumber && number == as<double>(pBytes);
    case QvDatabaseCatalogElement_Bool:
        return isNumber && number == (as<unsigned char>(pBytes) != 0 ? 1 : 0);
    default:
        return isNumber && static_cast<double>(document.integer(index)) == number &&
               isSameInteger(document.integer(index), field, pBytes);
    }
}

bool isHeldByInitialization(std::string_view text, const Field& field, const std::byte* pBytes)
{
    if (field.written == QvDatabaseCatalogElement_Text) {
        return text == charactersOf(field, pBytes);
    }
    if (field.written == QvDatabaseCatalogElement_Float) {
        float number = 0;
        const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        return error == std::errc() && pEnd == text.data() + text.size() && number == as<float>(pBytes);
    }
    return text == writtenInitialization(field, pBytes);
}

/// The first word, which is all that a load looks at.
std::string_view numberIn(std::string_view text)
{
    return text.substr(0, text.find_first_of(" \t"));
}

std::vector<std::string> keysOf(const std::vector<FieldNode>& fields)
{
    std::vector<std::string> keys;
    keys.reserve(fields.size());
    for (const FieldNode& node : fields) {
        keys.emplace_back(node.field.pKey);
    }
    return keys;
}

} // namespace

TextSetter::TextSetter(std::string text, Form form, const FieldTrees& fields, Session& wanted)
    : text_(std::move(text)), form_(form), fields_(fields), wanted_(wanted)
{
    reload();
}

void TextSetter::reload()
{
    document_.read(text_, form_);
    pPlaces_ = std::make_unique<Places>(document_, fields_);
    edits_ = {};
    replaced_.clear();
    looked_.clear();
}

void TextSetter::finish()
{
    if (!edits_.isEmpty()) {
        text_ = edits_.applied(text_);
        reload();
    }
}

const std::string& TextSetter::text()
{
    finish();
    return text_;
}

std::size_t TextSetter::lineOf(const Target& target)
{
    finish();
    Reach reach;
    return pPlaces_->find(target, reach) && reach.isWhole ? document_.place(document_[reach.node].value.begin).line : 0;
}

const std::byte* TextSetter::recordOf(const Reach& reach) const
{
    return static_cast<const std::byte*>(wanted_.record(reach.category.pKey));
}

/// Whether it is a number of an `.ini` text without quotes.
bool TextSetter::isNumber(const Reach& reach) const
{
    const QvDatabaseCatalogElement_t written = reach.route.pLeaf->field.written;
    return form_ == Form::Ini && text_[document_[reach.node].value.begin] != '"' &&
           (written == QvDatabaseCatalogElement_Integer || written == QvDatabaseCatalogElement_Float);
}

bool TextSetter::isHeld(const Reach& reach) const
{
    const std::byte* pBytes = reach.route.bytes(recordOf(reach));
    const Field& field = reach.route.pLeaf->field;
    if (form_ != Form::Ini) {
        return isHeldByJson(document_, reach.node, field, pBytes);
    }
    const std::string_view text = document_.string(reach.node);
    return document_[reach.node].type == QvJsonValueType_String &&
           isHeldByInitialization(isNumber(reach) ? numberIn(text) : text, field, pBytes);
}

std::string TextSetter::elementText(const Reach& reach) const
{
    Field field = reach.route.pLeaf->field;
    const std::byte* pBytes = reach.route.bytes(recordOf(reach));
    if (form_ == Form::Ini) {
        return writtenInitialization(field, pBytes);
    }
    // A bool stays a number where the document has one.
    const QvJsonValueType_t type = document_[reach.node].type;
    if (field.element == QvDatabaseCatalogElement_Bool && type == QvJsonValueType_Boolean) {
        field.written = QvDatabaseCatalogElement_Bool;
    } else if (field.element == QvDatabaseCatalogElement_Bool && type == QvJsonValueType_Integer) {
        field.written = QvDatabaseCatalogElement_Integer;
    }
    return writtenElement(field, pBytes);
}

/// Of doubled keys a load takes the last one, which nobody would expect who looks at the first.
void TextSetter::noteDoubled(const Target& target, NodeIndex node)
{
    for (; node != 0 && node != kNoNode && looked_.insert(node).second; node = document_[node].parent) {
        std::size_t number = 0;
        NodeIndex other = document_[document_[node].parent].first;
        for (; other != kNoNode && !document_[node].key.isEmpty(); other = document_[other].next) {
            number += document_.key(other) == document_.key(node) ? 1U : 0U;
        }
        if (number > 1) {
            notes_.push_back(target.path + ": " + std::string(document_.key(node)) + " stands there " +
                             std::to_string(number) + " times; the last one counts and is changed, in line " +
                             std::to_string(document_.place(document_[node].key.begin).line));
        }
    }
}

bool TextSetter::put(const Change& change, std::string& error)
{
    const Target& target = change.target;
    Reach reach;
    if (!pPlaces_->find(target, reach)) {
        finish();
        return addCategory(target, error);
    }
    const std::vector<FieldNode>& fields = fields_.of(reach.document, reach.category);
    if (reach.document == QvDatabaseCatalogDocument_Calibration) {
        const char* pFirst = fields.front().field.pKey;
        const NodeIndex first = document_.member(0, pFirst);
        if (first == kNoNode || document_.isEmpty(first)) {
            error = target.path + ": the document has no member \"" + pFirst +
                    "\", and without one a load takes no calibration from it";
            return false;
        }
    }
    if (!reach.isWhole) {
        finish();
        return pPlaces_->find(target, reach) && add(target, reach, error);
    }
    if (target.isElement()) {
        if (replaced_.contains(reach.node)) {
            finish(); // two fields may stand in one place
            pPlaces_->find(target, reach);
        }
        if (isHeld(reach)) {
            return true;
        }
        noteDoubled(target, reach.node);
        const Span value = document_[reach.node].value;
        // A key of an .ini text may have no value behind its sign, and no sign. What stands behind a number there is
        // part of the value and of no effect, such as a remark.
        const bool isBare = form_ == Form::Ini && document_[reach.node].type == QvJsonValueType_Null;
        const std::size_t blank = value.isEmpty() && !isBare && text_[value.begin] == ' ' ? 1 : 0;
        const std::size_t end = isNumber(reach) ? value.begin + numberIn(document_.slice(value)).size() : value.end;
        replaced_.insert(reach.node);
        edits_.replace(value.begin + blank, end + blank, (isBare ? " = " : "") + elementText(reach));
        return true;
    }
    finish();
    pPlaces_->find(target, reach);
    JsonEditor editor(document_);
    editor.replace(reach.node, [&](const Layout& layout, const std::string& indent) {
        return RouteText(reach.route, recordOf(reach)).member(reach.route.steps.size() - 1, layout, indent);
    });
    edits_ = editor.edits();
    finish();
    return true;
}

bool TextSetter::add(const Target& target, const Reach& reach, std::string& error)
{
    if (form_ == Form::Ini) {
        addInitialization(reach, reach.node);
        return true;
    }
    JsonEditor editor(document_);
    const RouteText text(reach.route, recordOf(reach));
    const std::vector<FieldNode>& fields =
        reach.step == 0 ? fields_.of(reach.document, reach.category) : reach.route.steps[reach.step - 1].pField->fields;
    if (reach.hasMember) {
        if (!addItems(target, reach, editor, error)) {
            return false;
        }
    } else if (document_[reach.node].type != QvJsonValueType_Object) {
        editor.replace(reach.node, [&](const Layout& layout, const std::string& indent) {
            return text.object(reach.step, layout, indent);
        });
    } else {
        const bool isRoot = reach.step == 0 && reach.node == 0;
        editor.addMember(
            reach.node, reach.route.steps[reach.step].pField->field.pKey, isRoot ? rootOrder() : keysOf(fields),
            [&](const Layout& layout, const std::string& indent) { return text.member(reach.step, layout, indent); });
    }
    edits_ = editor.edits();
    finish();
    return true;
}

/// Adds what a list lacks up to an item, or writes it anew where what stands there is no list.
bool TextSetter::addItems(const Target& target, const Reach& reach, JsonEditor& editor, std::string& error)
{
    const RouteStep& step = reach.route.steps[reach.step];
    const Field& field = step.pField->field;
    const RouteText text(reach.route, recordOf(reach));
    const bool isMember = reach.items == 0;
    if (document_[reach.node].type != QvJsonValueType_Array || field.count == QvDatabaseCatalogCount_Members) {
        editor.replace(reach.node, [&](const Layout& layout, const std::string& indent) {
            return isMember ? text.member(reach.step, layout, indent)
                            : text.item(reach.step, reach.items - 1, step.items[reach.items - 1], layout, indent);
        });
        return true;
    }
    const std::size_t number = document_[reach.node].count;
    const std::size_t wanted = step.items[reach.items];
    if (field.counterWidth != 0 && field.count != QvDatabaseCatalogCount_Counted) {
        error = target.path + ": the document's list has " + std::to_string(number) + " items";
        return false;
    }
    if (step.pField->fields.empty() && wanted > number) {
        notes_.push_back(target.path + ": the list ended before item " + std::to_string(wanted) + "; items from " +
                         std::to_string(number) + " on are written with the values they have");
    }
    std::vector<JsonEditor::Value> values;
    for (std::size_t i = number; i <= wanted; ++i) {
        values.emplace_back([&text, &reach, i](const Layout& layout, const std::string& indent) {
            return text.item(reach.step, reach.items, i, layout, indent);
        });
    }
    editor.addItems(reach.node, values);
    return true;
}

} // namespace qv::tools
