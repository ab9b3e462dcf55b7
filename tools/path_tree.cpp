#include "path_tree.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "bytes.h"
#include "catalog_tree.h"
#include "output.h"
#include "suggest.h"

namespace qv::tools {
namespace {

using Document = QvDatabaseCatalogDocument_t;

PathNode nodeOf(const FieldNode& field, bool isItem, std::size_t index)
{
    PathNode node{isItem ? "[" + std::to_string(index) + "]" : field.field.pKey, field.field, false, {}};
    const bool isList = field.field.count == QvDatabaseCatalogCount_Members;
    if (isList) { // one record; the list is that of its numbers
        node.field.rank = 0;
        std::fill(std::begin(node.field.extents), std::end(node.field.extents), 1);
    }
    for (std::size_t i = 0; i < field.fields.size(); ++i) {
        if (!field.fields[i].field.isTwin) {
            node.members.push_back(nodeOf(field.fields[i], isList, i));
        }
    }
    return node;
}

/// The node, at this level or in a group of it, that stands for the C member at a place.
PathNode* nodeAt(std::vector<PathNode>& nodes, const QvDatabaseCatalogField_t& field)
{
    for (PathNode& node : nodes) {
        if (node.isGroup()) {
            if (PathNode* pInner = nodeAt(node.members, field); pInner != nullptr) {
                return pInner;
            }
            continue;
        }
        const std::size_t bytes =
            node.field.width * node.field.extents[0] * node.field.extents[1] * node.field.extents[2];
        if (field.offset == node.field.offset ||
            (field.offset > node.field.offset && field.offset < node.field.offset + bytes)) {
            return &node;
        }
    }
    return nullptr;
}

/// Adds the members that only memory has, under their C names.
void addMemory(std::vector<PathNode>& nodes, const std::vector<FieldNode>& members)
{
    std::vector<PathNode> others;
    for (const FieldNode& member : members) {
        PathNode* pNode = nodeAt(nodes, member.field);
        if (pNode == nullptr) {
            others.push_back(nodeOf(member, false, 0));
            others.back().isOnlyInMemory = true;
        } else if (pNode->isRecord() && !member.fields.empty() && pNode->field.pRecord != nullptr &&
                   member.field.pRecord != nullptr && std::string_view(pNode->field.pRecord) == member.field.pRecord &&
                   pNode->field.count != QvDatabaseCatalogCount_Members) {
            addMemory(pNode->members, member.fields);
        }
    }
    std::move(others.begin(), others.end(), std::back_inserter(nodes));
}

Document documentOf(const QvDatabaseCatalogCategory_t& category, bool isSimulator)
{
    if (isSimulator && isCarriedBy(category, QvDatabaseCatalogDocument_Simulator)) {
        return QvDatabaseCatalogDocument_Simulator;
    }
    for (const Document document : {QvDatabaseCatalogDocument_Tuning, QvDatabaseCatalogDocument_Calibration}) {
        if (isCarriedBy(category, document)) {
            return document;
        }
    }
    return QvDatabaseCatalogDocument_Memory;
}

PathCategory makeCategory(const QvDatabaseCatalogCategory_t& inMemory, bool isSimulator)
{
    PathCategory made{inMemory, documentOf(inMemory, isSimulator), inMemory.pKey, {}};
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(made.document)) {
        if (std::string_view(category.pKey) != inMemory.pKey) {
            continue;
        }
        if (category.pClass != nullptr) {
            made.name = category.pClass;
        }
        for (const FieldNode& field : fieldsOf(made.document, category)) {
            if (!field.field.isTwin) {
                made.members.push_back(nodeOf(field, false, 0));
            }
        }
        break; // a class that stands for the same category again has the same fields
    }
    if (made.document == QvDatabaseCatalogDocument_Calibration) {
        made.name.clear();
    }
    if (made.document != QvDatabaseCatalogDocument_Memory) {
        addMemory(made.members, fieldsOf(QvDatabaseCatalogDocument_Memory, inMemory));
    }
    return made;
}

/// Members of a record under their names; those of groups only behind the group's own.
const PathNode* findMember(const std::vector<PathNode>& members, const std::string& name)
{
    for (const PathNode& node : members) {
        if (node.name == name || (node.name.starts_with('[') && node.field.pKey == name)) {
            return &node;
        }
    }
    // The name that C has, or an older key.
    for (const PathNode& node : members) {
        if (node.field.pName != nullptr && node.field.pName == name) {
            return &node;
        }
    }
    return nullptr;
}

std::string joined(const std::string& path, const std::string& name)
{
    return path.empty() || name.starts_with('[') ? path + name : path + '.' + name;
}

/// Follows the steps of one path from the targets reached so far.
class Search {
public:
    Search(const Path& path, const Session* pSession, std::string& error)
        : path_(path), pSession_(pSession), error_(error)
    {
    }

    bool follow(const Target& target, std::size_t step, std::vector<Target>& targets)
    {
        if (step == path_.steps.size()) {
            targets.push_back(target);
            return true;
        }
        const PathStep& wanted = path_.steps[step];
        if (target.rank > 0) {
            return followList(target, wanted, step, targets);
        }
        const std::vector<PathNode>& members = PathTree::membersOf(target);
        if (members.empty()) {
            return fail(target.path + " has no members");
        }
        const bool isNumbers = target.pNode != nullptr && target.pNode->field.count == QvDatabaseCatalogCount_Members;
        if (wanted.kind == PathStep::Any && (!wanted.isBracketed || isNumbers)) {
            for (const PathNode& node : members) {
                if (!follow(PathTree::member(target, node), step + 1, targets)) {
                    return false;
                }
            }
            return true;
        }
        const std::string name =
            wanted.kind == PathStep::Index ? '[' + std::to_string(wanted.first) + ']' : wanted.name;
        const PathNode* pNode = findMember(members, name);
        if (pNode == nullptr) {
            std::vector<std::string> names;
            names.reserve(members.size());
            for (const PathNode& node : members) {
                names.push_back(node.name);
            }
            const std::string of = target.path.empty() ? "calibration" : target.path;
            return fail(of + " has no member " + name + suggestion(name, names));
        }
        return follow(PathTree::member(target, *pNode), step + 1, targets);
    }

private:
    bool fail(const std::string& reason)
    {
        error_ = path_.text + ": " + reason;
        return false;
    }

    /// Items in use; all of them where there is no record to ask.
    std::size_t usedOf(const Target& list) const
    {
        return pSession_ == nullptr ? list.extents[0]
                                    : usedItems(list, pSession_->record(list.pCategory->category.pKey));
    }

    bool followList(const Target& list, const PathStep& wanted, std::size_t step, std::vector<Target>& targets)
    {
        if (path_.mayOmitIndices &&
            (wanted.kind == PathStep::Any || (wanted.kind == PathStep::Name && !wanted.isBracketed))) {
            return follow(PathTree::item(list, 0), wanted.isBracketed ? step + 1 : step, targets);
        }
        const bool isHeap = list.pNode->field.count == QvDatabaseCatalogCount_Heap;
        const std::size_t most = isHeap ? usedOf(list) : list.extents[0];
        std::size_t first = wanted.first;
        std::size_t last = wanted.kind == PathStep::Range ? wanted.last : wanted.first + 1;
        if (wanted.kind == PathStep::Any) {
            first = 0;
            last = usedOf(list);
        } else if (wanted.kind == PathStep::Name) {
            if (!findItem(list, wanted.name, first)) {
                return fail(wanted.isBracketed ? list.path + " has no item named " + wanted.name
                                               : list.path + " is a list and wants an index before " + wanted.name);
            }
            last = first + 1;
        }
        if (last > most) {
            return fail(list.path + " has " + std::to_string(most) + " items, and " + std::to_string(last - 1) +
                        " is past the last");
        }
        for (std::size_t i = first; i < last; ++i) {
            if (!follow(PathTree::item(list, i), step + 1, targets)) {
                return false;
            }
        }
        return true;
    }

    /// The item whose member `name` holds that text.
    bool findItem(const Target& list, const std::string& name, std::size_t& index) const
    {
        const PathNode* pName = list.rank == 1 ? findMember(list.pNode->members, "name") : nullptr;
        if (pName == nullptr || pSession_ == nullptr || pName->field.element != QvDatabaseCatalogElement_Text) {
            return false;
        }
        const void* pRecord = pSession_->record(list.pCategory->category.pKey);
        const std::size_t used = usedOf(list);
        for (index = 0; index < used; ++index) {
            if (textOf(PathTree::member(PathTree::item(list, index), *pName), pRecord) == name) {
                return true;
            }
        }
        return false;
    }

    const Path& path_;
    const Session* pSession_;
    std::string& error_;
};

std::uint64_t bitsOf(const std::byte* pBytes, std::size_t width)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, pBytes, std::min(width, sizeof bits));
    return bits;
}

std::int64_t signedOf(std::uint64_t bits, std::size_t width)
{
    const unsigned shift = static_cast<unsigned>(64 - width * 8);
    return static_cast<std::int64_t>(bits << shift) >> shift;
}

} // namespace

PathTree::PathTree(bool isSimulator) : isSimulator_(isSimulator), keys_(categoriesOf(QvDatabaseCatalogDocument_Memory))
{
}

const PathCategory& PathTree::category(const std::string& key) const
{
    const auto found = made_.find(key);
    if (found != made_.end()) {
        return found->second;
    }
    const auto entry = std::find_if(keys_.begin(), keys_.end(),
                                    [&](const QvDatabaseCatalogCategory_t& category) { return key == category.pKey; });
    return made_.emplace(key, makeCategory(*entry, isSimulator_)).first->second;
}

bool PathTree::find(const Path& path, const Session* pSession, std::vector<Target>& targets, std::string& error) const
{
    Search search(path, pSession, error);
    const PathStep& first = path.steps.front();
    if (first.kind == PathStep::Any) {
        for (const QvDatabaseCatalogCategory_t& key : keys_) {
            if (!search.follow(whole(category(key.pKey)), 1, targets)) {
                return false;
            }
        }
        return true;
    }
    std::vector<std::string> names;
    for (const QvDatabaseCatalogCategory_t& key : keys_) {
        if (first.name == key.pKey) {
            return search.follow(whole(category(key.pKey)), 1, targets);
        }
        names.emplace_back(key.pKey);
    }
    if (isSimulator_) {
        for (const QvDatabaseCatalogCategory_t& key : keys_) {
            if (category(key.pKey).name == first.name) {
                return search.follow(whole(category(key.pKey)), 1, targets);
            }
            names.push_back(category(key.pKey).name);
        }
    }
    const PathCategory& calibration = category("CLB");
    if (findMember(calibration.members, first.name) != nullptr) {
        return search.follow(whole(calibration), 0, targets);
    }
    for (const PathNode& node : calibration.members) {
        names.push_back(node.name);
    }
    error = path.text + ": there is no category " + first.name + suggestion(first.name, names);
    return false;
}

bool PathTree::find(const std::string& text, const Session* pSession, std::vector<Target>& targets,
                    std::string& error) const
{
    Path path;
    if (!readPath(text, path, error)) {
        error = text + ": " + error;
        return false;
    }
    return find(path, pSession, targets, error);
}

Target PathTree::whole(const PathCategory& category)
{
    Target target;
    target.path = category.name;
    target.pCategory = &category;
    return target;
}

Target PathTree::member(const Target& record, const PathNode& node)
{
    Target target = record;
    target.path = joined(record.path, node.name);
    target.pNode = &node;
    target.rank = node.isGroup() ? 0 : node.field.rank;
    std::copy(std::begin(node.field.extents), std::end(node.field.extents), target.extents);
    // A group's members belong to the record around it; a group of theirs may begin anywhere in it.
    target.counterBase = record.pNode != nullptr && record.pNode->isGroup() ? record.counterBase : record.offset;
    target.offset = node.isGroup() ? target.counterBase : target.counterBase + node.field.offset;
    if (node.field.count == QvDatabaseCatalogCount_Heap && !node.isGroup()) {
        target.heapOffset = target.offset;
        target.offset = 0;
    }
    return target;
}

Target PathTree::item(const Target& list, std::size_t index)
{
    Target target = list;
    target.path = list.path + '[' + std::to_string(index) + ']';
    target.offset += index * list.pNode->field.width * list.extents[1] * list.extents[2];
    target.rank = list.rank - 1;
    target.extents[0] = list.extents[1];
    target.extents[1] = list.extents[2];
    target.extents[2] = 1;
    return target;
}

const std::vector<PathNode>& PathTree::membersOf(const Target& target)
{
    return target.pNode == nullptr ? target.pCategory->members : target.pNode->members;
}

std::size_t usedItems(const Target& list, const void* pRecord)
{
    const QvDatabaseCatalogField_t& field = list.pNode->field;
    const bool isOutermost = list.rank == field.rank;
    if (field.counterWidth == 0 || !isOutermost) {
        return list.extents[0];
    }
    const std::byte* pCounter = static_cast<const std::byte*>(pRecord) + list.counterBase + field.counterOffset;
    const std::size_t number = bitsOf(pCounter, field.counterWidth);
    return field.count == QvDatabaseCatalogCount_Heap ? number : std::min(number, list.extents[0]);
}

const std::byte* bytesOf(const Target& target, const void* pRecord)
{
    const auto* pBytes = static_cast<const std::byte*>(pRecord);
    if (target.heapOffset == SIZE_MAX) {
        return pBytes + target.offset;
    }
    const auto* pHeap = as<const std::byte*>(pBytes + target.heapOffset);
    return pHeap == nullptr ? nullptr : pHeap + target.offset;
}

std::byte* bytesOf(const Target& target, void* pRecord)
{
    return const_cast<std::byte*>(bytesOf(target, static_cast<const void*>(pRecord)));
}

double numberAt(const QvDatabaseCatalogField_t& field, const std::byte* pBytes)
{
    switch (field.element) {
    case QvDatabaseCatalogElement_Bool:
        return bitsOf(pBytes, 1) != 0 ? 1.0 : 0.0;
    case QvDatabaseCatalogElement_Integer:
    case QvDatabaseCatalogElement_Pointer:
        return field.isSigned ? static_cast<double>(signedOf(bitsOf(pBytes, field.width), field.width))
                              : static_cast<double>(bitsOf(pBytes, field.width));
    case QvDatabaseCatalogElement_Float:
        return static_cast<double>(as<float>(pBytes));
    case QvDatabaseCatalogElement_Double:
        return as<double>(pBytes);
    case QvDatabaseCatalogElement_Text:
    case QvDatabaseCatalogElement_Record:
        break;
    }
    return 0.0;
}

std::string textAt(const QvDatabaseCatalogField_t& field, const std::byte* pBytes)
{
    switch (field.element) {
    case QvDatabaseCatalogElement_Bool:
        return bitsOf(pBytes, 1) != 0 ? "true" : "false";
    case QvDatabaseCatalogElement_Integer:
        return field.isSigned ? digitsOf(signedOf(bitsOf(pBytes, field.width), field.width))
                              : digitsOf(bitsOf(pBytes, field.width));
    case QvDatabaseCatalogElement_Pointer:
        return bitsOf(pBytes, field.width) == 0 ? "none" : "set";
    case QvDatabaseCatalogElement_Float:
        return digitsOf(as<float>(pBytes));
    case QvDatabaseCatalogElement_Double:
        return digitsOf(as<double>(pBytes));
    case QvDatabaseCatalogElement_Text:
        return std::string(charactersOf(field, pBytes));
    case QvDatabaseCatalogElement_Record:
        break;
    }
    return "";
}

std::string valueAt(const QvDatabaseCatalogField_t& field, const std::byte* pBytes)
{
    std::string text = textAt(field, pBytes);
    switch (field.element) {
    case QvDatabaseCatalogElement_Float:
    case QvDatabaseCatalogElement_Double:
        return std::isfinite(numberAt(field, pBytes)) ? text : "null";
    case QvDatabaseCatalogElement_Pointer:
        return "null";
    case QvDatabaseCatalogElement_Text:
        return jsonText(text);
    default:
        return text;
    }
}

double numberOf(const Target& element, const void* pRecord)
{
    return numberAt(element.pNode->field, bytesOf(element, pRecord));
}

std::string textOf(const Target& element, const void* pRecord)
{
    return textAt(element.pNode->field, bytesOf(element, pRecord));
}

std::string valueText(const Target& element, const void* pRecord)
{
    return valueAt(element.pNode->field, bytesOf(element, pRecord));
}

std::string jsonOf(const Target& target, const Session& session, Members members)
{
    const void* pRecord = session.record(target.pCategory->category.pKey);
    std::string text;
    const char* pSeparator = "";
    if (target.rank > 0) {
        const std::size_t used = usedItems(target, pRecord);
        for (std::size_t i = 0; i < used; ++i) {
            text += pSeparator + jsonOf(PathTree::item(target, i), session, members);
            pSeparator = ", ";
        }
        return '[' + text + ']';
    }
    if (target.isElement()) {
        return valueText(target, pRecord);
    }
    const bool isList = target.pNode != nullptr && target.pNode->field.count == QvDatabaseCatalogCount_Members;
    const bool hasAll = members == Members::All || target.pCategory->document == QvDatabaseCatalogDocument_Memory;
    for (const PathNode& node : PathTree::membersOf(target)) {
        if (hasAll || !node.isOnlyInMemory) {
            text += pSeparator + (isList ? "" : jsonText(node.name) + ": ") +
                    jsonOf(PathTree::member(target, node), session, members);
            pSeparator = ", ";
        }
    }
    return isList ? '[' + text + ']' : '{' + text + '}';
}

} // namespace qv::tools
