#include "settings.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include <qv_common_c/common_convert.h>
#include <qv_common_c/common_error.h>

#include "catalog_tree.h"
#include "output.h"
#include "suggest.h"

namespace qv::tools {

namespace {

/// Where the name ends and the value begins; brackets may hold a '=' of a name.
std::size_t findEquals(const std::string& setting)
{
    std::size_t depth = 0;
    for (std::size_t i = 0; i < setting.size(); ++i) {
        depth += setting[i] == '[' ? 1U : 0U;
        depth -= setting[i] == ']' && depth > 0 ? 1U : 0U;
        if (setting[i] == '=' && depth == 0) {
            return i;
        }
    }
    return std::string::npos;
}

std::string shortened(const std::string& text)
{
    constexpr std::size_t kMost = 40;
    return text.size() <= kMost ? text : text.substr(0, kMost) + "...";
}

std::string shapeOf(const Target& list)
{
    std::string shape = std::to_string(list.extents[0]);
    for (std::size_t i = 1; i < list.rank; ++i) {
        shape += " x " + std::to_string(list.extents[i]);
    }
    return shape;
}

/// What a field takes, for who gave it something else: "0..255 (uint8)".
std::string takenBy(const QvDatabaseCatalogField_t& field)
{
    const std::string range = rangeText(field);
    switch (field.element) {
    case QvDatabaseCatalogElement_Bool:
        return "true or false";
    case QvDatabaseCatalogElement_Integer: {
        const std::size_t bits = field.width * 8;
        const std::string type = (field.isSigned ? "int" : "uint") + std::to_string(bits);
        const std::uint64_t most = UINT64_MAX >> (64 - bits) >> (field.isSigned ? 1 : 0);
        const std::string least = field.isSigned ? '-' + std::to_string(most + 1) : "0";
        return (range.empty() ? least + ".." + std::to_string(most) : range) + " (" + type + ')';
    }
    case QvDatabaseCatalogElement_Float:
        return range.empty() ? "a finite number of 32 bits" : range;
    case QvDatabaseCatalogElement_Double:
        return range.empty() ? "a finite number" : range;
    default:
        return "at most " + std::to_string(field.width - 1) + " bytes";
    }
}

/// Why a text is no value of a field.
std::string refusal(const QvDatabaseCatalogField_t& field, const std::string& text, int status)
{
    const std::string shown = shortened(text);
    if (status == QvCommonError_BadArgument) {
        return "is kept by the library and can't be set";
    }
    if (status == QvCommonError_Capacity) {
        return "doesn't hold " + shown + ", but " + takenBy(field);
    }
    std::vector<std::string> names;
    std::string list;
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        names.emplace_back(value.pShort);
        list += (list.empty() ? "" : ", ") + names.back();
    }
    if (!names.empty()) {
        return "takes no " + shown + suggestion(text, names) + ", but a number or one of " + list;
    }
    return "takes no " + shown + ", but " + takenBy(field) +
           suggestion(text, field.element == QvDatabaseCatalogElement_Bool ? std::vector<std::string>{"true", "false"}
                                                                           : std::vector<std::string>{});
}

/// Why a place can't be set that is in a row behind those that are counted: it would be lost.
std::string unusedItem(const Route& route, const void* pRecord)
{
    for (std::size_t i = 0; i < route.steps.size(); ++i) {
        const QvDatabaseCatalogField_t& field = route.steps[i].pField->field;
        if (field.counterWidth == 0 || field.count == QvDatabaseCatalogCount_Counted || route.steps[i].items.empty()) {
            continue;
        }
        std::size_t number = 0;
        std::memcpy(&number, route.base(i, pRecord) + field.counterOffset, std::min(field.counterWidth, sizeof number));
        if (route.steps[i].items[0] >= number) {
            return std::string("isn't in use: ") + field.pKey + " has " + std::to_string(number) +
                   (number == 1 ? " item" : " items");
        }
    }
    return "";
}

/// What the member holds for a number with the sign that its document writes, 65476 for -60; empty where that is the
/// same, or the text no such number.
std::string asMember(const QvDatabaseCatalogField_t& field, const std::string& text)
{
    std::int64_t number = 0;
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isOther = field.element == QvDatabaseCatalogElement_Integer && field.width < sizeof number &&
                         field.written == QvDatabaseCatalogElement_Integer && field.isSigned != field.isWrittenSigned;
    if (!isOther || error != std::errc() || pEnd != text.data() + text.size()) {
        return "";
    }
    const std::int64_t all = std::int64_t{1} << (field.width * 8);
    const std::int64_t own = field.isSigned ? number - all : number + all;
    const bool isWritten = field.isSigned ? own >= -all / 2 && own < 0 : own >= all / 2 && own < all;
    return isWritten ? std::to_string(own) : "";
}

bool isText(const Target& target)
{
    return target.pNode->field.element == QvDatabaseCatalogElement_Text;
}

} // namespace

bool Settings::fail(const Target& target, const std::string& reason)
{
    error_ = target.path + ' ' + reason;
    return false;
}

bool Settings::storeElement(const Target& element, NodeIndex value)
{
    const DocumentNode& node = document_[value];
    if (node.isContainer()) {
        return fail(element, node.type == QvJsonValueType_Array ? "is one value, no list" : "is one value, no record");
    }
    const std::string text(node.type == QvJsonValueType_String ? document_.string(value) : document_.slice(node.value));
    const QvDatabaseCatalogCategory_t& category = element.pCategory->category;
    void* pRecord = session_.record(category.pKey);
    // The library's own rules for a value hold. What is in memory alone has its C names.
    QvDatabaseCatalogDocument_t document = element.pCategory->document;
    Route route;
    if (!findRoute(fields_.of(document, category), element, false, route)) {
        document = QvDatabaseCatalogDocument_Memory;
        findRoute(fields_.of(document, category), element, false, route);
    }
    if (const std::string unused = unusedItem(route, pRecord); !unused.empty()) {
        return fail(element, unused);
    }
    changes_.push_back({element, valueText(element, pRecord), number_});
    QvDatabaseCatalogPlace_t place{};
    place.size = sizeof place;
    int status = QvCommonError_BadArgument;
    if (QvDatabaseCatalog_find(document, (category.pKey + ('.' + route.path())).c_str(), &place) == 0) {
        status = node.type == QvJsonValueType_Null ? static_cast<int>(QvCommonError_Syntax)
                                                   : QvDatabaseCatalog_setText(&place, pRecord, text.c_str());
        if (const std::string own = asMember(route.pLeaf->field, text);
            status == QvCommonError_Capacity && !own.empty()) {
            status = QvDatabaseCatalog_setText(&place, pRecord, own.c_str());
        }
    }
    return status == 0 || fail(element, refusal(element.pNode->field, text, status));
}

bool Settings::resize(const Target& list, std::size_t number)
{
    const QvDatabaseCatalogField_t& field = list.pNode->field;
    const bool isCounted =
        field.count == QvDatabaseCatalogCount_Schedule || field.count == QvDatabaseCatalogCount_Measured;
    if (!isCounted) {
        return fail(list, "has " + std::to_string(usedItems(list, session_.record(list.pCategory->category.pKey))) +
                              " items and stays so, but the list has " + std::to_string(number));
    }
    if (number > list.extents[0]) {
        return fail(list, "has room for " + std::to_string(list.extents[0]) + " items, but the list has " +
                              std::to_string(number));
    }
    changes_.push_back({list, jsonOf(list, session_, Members::All), number_});
    auto* pRecord = static_cast<std::byte*>(session_.record(list.pCategory->category.pKey));
    QvCommonConvert_integer2Binary(pRecord + list.counterBase + field.counterOffset, field.counterWidth, 0,
                                   static_cast<ssize_t>(number));
    return true;
}

bool Settings::storeList(const Target& list, NodeIndex value)
{
    const bool isRecords = list.pNode->isRecord();
    const DocumentNode& node = document_[value];
    std::size_t number = usedItems(list, session_.record(list.pCategory->category.pKey));
    if (node.type != QvJsonValueType_Array) {
        if (isRecords || node.isContainer()) {
            return fail(list, isRecords ? "is a list of records: name a member of its items, or give a JSON list"
                                        : "is a list of values, not of records");
        }
        for (std::size_t i = 0; i < number; ++i) {
            if (!store(PathTree::item(list, i), value)) {
                return false;
            }
        }
        return true;
    }
    if (!isRecords && list.rank > 1 && node.count == list.elements() && !document_[node.first].isContainer()) {
        // Rows may be given as one list.
        for (NodeIndex item = node.first; item != kNoNode; item = document_[item].next) {
            Target element = list;
            for (std::size_t index = document_[item].index; element.rank > 0;) {
                const std::size_t inner = element.extents[1] * element.extents[2];
                element = PathTree::item(element, index / inner);
                index %= inner;
            }
            if (!store(element, item)) {
                return false;
            }
        }
        return true;
    }
    if (node.count != number) {
        if (!isRecords) {
            return fail(list, "takes " + shapeOf(list) + " values, but the list has " + std::to_string(node.count));
        }
        if (!resize(list, node.count)) {
            return false;
        }
    }
    for (NodeIndex item = node.first; item != kNoNode; item = document_[item].next) {
        if (!store(PathTree::item(list, document_[item].index), item)) {
            return false;
        }
    }
    return true;
}

/// A record that stands as the list of its numbers.
bool Settings::storeItems(const Target& record, const std::vector<PathNode>& members, NodeIndex value)
{
    if (document_[value].count != members.size()) {
        return fail(record, "takes " + std::to_string(members.size()) + " values, but the list has " +
                                std::to_string(document_[value].count));
    }
    for (NodeIndex item = document_[value].first; item != kNoNode; item = document_[item].next) {
        if (!store(PathTree::member(record, members[document_[item].index]), item)) {
            return false;
        }
    }
    return true;
}

bool Settings::storeRecord(const Target& record, NodeIndex value)
{
    const std::vector<PathNode>& members = PathTree::membersOf(record);
    const bool isNumbers = record.pNode != nullptr && record.pNode->field.count == QvDatabaseCatalogCount_Members;
    if (isNumbers && document_[value].type == QvJsonValueType_Array) {
        return storeItems(record, members, value);
    }
    if (document_[value].type != QvJsonValueType_Object) {
        return fail(record, "is a record: name a member of it, as " +
                                (members.empty() ? record.path : PathTree::member(record, members[0]).path) +
                                ", or give a JSON object");
    }
    for (NodeIndex item = document_[value].first; item != kNoNode; item = document_[item].next) {
        std::vector<std::string> names;
        const PathNode* pMember = nullptr;
        for (const PathNode& node : members) {
            names.push_back(node.name);
            pMember = node.name == document_.key(item) ? &node : pMember;
        }
        if (pMember == nullptr) {
            return fail(record,
                        "has no member " + std::string(document_.key(item)) + suggestion(document_.key(item), names));
        }
        if (!store(PathTree::member(record, *pMember), item)) {
            return false;
        }
    }
    return true;
}

bool Settings::store(const Target& target, NodeIndex value)
{
    if (target.rank > 0) {
        return storeList(target, value);
    }
    return target.isElement() ? storeElement(target, value) : storeRecord(target, value);
}

bool Settings::apply(const std::string& setting, std::string& error)
{
    const std::size_t equals = findEquals(setting);
    if (equals == std::string::npos || equals == 0) {
        error = setting + ": PATH=VALUE is wanted, such as AE_3.setPoint=45";
        return false;
    }
    std::vector<Target> targets;
    if (!tree_.find(setting.substr(0, equals), &session_, targets, error)) {
        return false;
    }
    if (targets.empty()) {
        error = setting.substr(0, equals) + ": names nothing that is in use";
        return false;
    }
    const std::string value = setting.substr(equals + 1);
    for (const Target& target : targets) {
        // Lists, records and texts in quotes are JSON; all else is taken as it is, texts with brackets as well.
        const bool isPlain =
            target.isElement() && isText(target) ? !value.starts_with('"') : value.find_first_of("[{\"") != 0;
        text_ = isPlain ? jsonText(value) : value;
        if (!document_.read(text_, Form::Json)) {
            error = "out of memory";
            return false;
        }
        if (!document_.faults().empty()) {
            const DocumentFault& fault = document_.faults()[0];
            error = target.path + " takes no " + shortened(value) + ": " + fault.words + " at character " +
                    std::to_string(fault.place.begin + 1);
            return false;
        }
        if (!store(target, 0)) {
            error = error_;
            return false;
        }
    }
    ++number_;
    return true;
}

} // namespace qv::tools
