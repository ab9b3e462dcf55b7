#include "check_document.h"

#include <algorithm>
#include <cmath>

#include "suggest.h"

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;

/// Where editors find a schema; a load passes over it.
constexpr std::string_view kSchemaKey = "$schema";

/// Whether a value stands for one number, bool or text.
bool isElement(const Bound& bound)
{
    return bound.pField != nullptr && bound.open == 0 && bound.pField->field.pName != nullptr &&
           bound.pField->field.written != QvDatabaseCatalogElement_Record &&
           bound.pField->field.count != QvDatabaseCatalogCount_Members;
}

std::string number(std::size_t count)
{
    return std::to_string(count);
}

} // namespace

void DocumentCheck::add(Fault fault, NodeIndex node, Span place, const std::string& text)
{
    if (findings_.isWanted(fault)) {
        findings_.add(fault, place, fields_.path(node, tree_), text);
    }
}

void DocumentCheck::run()
{
    checkSyntax();
    if (!document_.nodes().empty() && document_[0].type != QvJsonValueType_Object) {
        add(Fault::WrongKind, 0, "a document is an object; nothing of this one is read");
        return;
    }
    for (NodeIndex node = 0; node < document_.nodes().size(); ++node) {
        checkNode(node);
    }
}

void DocumentCheck::checkSyntax()
{
    for (const DocumentFault& fault : document_.faults()) {
        std::string text = fault.words;
        const std::size_t bracket = fault.suspect;
        suspects_.insert(bracket);
        if (bracket < document_.text().size()) {
            const char sign = document_.text()[bracket];
            const TextPlace place = document_.place(bracket);
            const std::string line = number(place.line) + ", column " + number(place.column);
            if (sign == '{' || sign == '[') {
                text += std::string("; the ") + (sign == '{' ? "object" : "list") + " opened at line " + line +
                        " seems never to be closed";
            } else {
                text += std::string("; the '") + sign + "' at line " + line + " seems to close too much";
            }
        }
        findings_.add(Fault::Syntax, fault.place, "", text);
    }
}

void DocumentCheck::checkNode(NodeIndex node)
{
    const Bound& bound = fields_[node];
    switch (bound.fate) {
    case Fate::Taken:
        checkTaken(node);
        break;
    case Fate::Unknown:
        checkUnknown(node);
        break;
    case Fate::Doubled:
        add(Fault::DuplicateKey, node, document_[node].key,
            "stands there again at line " + lineOf(bound.order) + ", and this one is lost");
        break;
    case Fate::Unread:
        checkUnread(node);
        break;
    case Fate::Kept:
        checkKept(node);
        break;
    case Fate::WrongKind:
        checkWrongKind(node);
        break;
    case Fate::Unseen:
    case Fate::Frame:
    case Fate::Written:
    case Fate::PastEnd: // told of its list
        break;
    }
}

std::string DocumentCheck::lineOf(NodeIndex node) const
{
    const DocumentNode& value = document_[node];
    return number(document_.place(value.key.isEmpty() ? value.value.begin : value.key.begin).line);
}

/// The fields of the record that an object stands for; none where it stands for several, or none.
const std::vector<FieldNode>& DocumentCheck::membersOf(NodeIndex record) const
{
    static const std::vector<FieldNode> kNone;
    const Bound& bound = fields_[record];
    if (!bound.hasCategory()) {
        return kNone;
    }
    return bound.pField != nullptr ? bound.pField->fields : fields_.category(bound).fields;
}

/// What might stand in an object, for a suggestion.
const std::vector<std::string>& DocumentCheck::keysBelow(NodeIndex node)
{
    std::vector<std::string>& keys = keysBelow_;
    if (node == keysNode_) {
        return keys;
    }
    keysNode_ = node;
    keys.clear();
    for (const FieldNode& field : membersOf(node)) {
        keys.emplace_back(field.field.pKey);
    }
    if (!keys.empty()) {
        return keys;
    }
    // The place of a frame, written as the catalog writes places.
    std::string place;
    for (NodeIndex at = node; document_[at].parent != kNoNode; at = document_[at].parent) {
        place.insert(0, '/' + (document_[at].key.isEmpty() ? "*" : std::string(document_.key(at))));
    }
    for (const auto& pCategory : fields_.categories()) {
        const std::string_view known = pCategory->category.pPlace;
        if (fields_.kind() == DocumentKind::Ini) {
            keys.emplace_back(known);
        } else if (known == place && pCategory->category.pClass == nullptr) {
            for (const FieldNode& field : fieldsOf(pCategory->document, pCategory->category)) {
                keys.emplace_back(field.field.pKey);
            }
        } else if (known.starts_with(place + '/')) {
            const std::string_view rest = known.substr(place.size() + 1);
            keys.emplace_back(rest.substr(0, rest.find('/')));
        }
    }
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    std::erase(keys, "*");
    return keys;
}

void DocumentCheck::checkUnknown(NodeIndex node)
{
    const DocumentNode& value = document_[node];
    if (value.key.isEmpty()) {
        // An object of a list of classes.
        std::vector<std::string> classes;
        const char* pClassKey = nullptr;
        const std::size_t depth = document_[document_[node].parent].parent == 0 ? 1 : 2;
        for (const auto& pCategory : fields_.categories()) {
            const std::string_view place = pCategory->category.pPlace;
            if (pCategory->category.pClass != nullptr &&
                static_cast<std::size_t>(std::count(place.begin(), place.end(), '*')) == depth) {
                classes.emplace_back(pCategory->category.pClass);
                pClassKey = pCategory->category.pClassKey;
            }
        }
        const NodeIndex name = pClassKey == nullptr ? kNoNode : document_.member(node, pClassKey);
        if (name == kNoNode) {
            add(Fault::UnknownClass, node, {value.value.begin, value.value.begin + 1},
                std::string("the object lacks its ") + (pClassKey == nullptr ? "class" : pClassKey) +
                    ", and is passed over");
        } else {
            const std::string_view text = document_.string(name);
            add(Fault::UnknownClass, node, document_[name].value,
                "there is no class " + std::string(document_.slice(document_[name].value)) + suggestion(text, classes) +
                    "; the object is passed over");
        }
        return;
    }
    const NodeIndex parent = value.parent;
    // An object that lacks its bracket takes what doesn't belong to it.
    const bool isUnclosed = suspects_.contains(document_[parent].value.begin);
    if (isUnclosed || fields_[parent].fate == Fate::Unknown || (parent == 0 && document_.key(node) == kSchemaKey)) {
        return;
    }
    const std::string key(document_.key(node));
    std::string hint = suggestion(key, keysBelow(parent));
    const bool isIni = fields_.kind() == DocumentKind::Ini;
    if (isIni && parent == 0 && value.type == QvJsonValueType_Object) {
        add(Fault::UnknownSection, node, value.key, "there is no such section" + hint);
    } else if (isIni) {
        add(Fault::UnknownKey, node, value.key,
            parent == 0 ? "stands before the first section" : "the section has no such key" + hint);
    } else if (fields_[parent].fate == Fate::Frame && document_[parent].parent == 0) {
        add(Fault::UnknownCategory, node, value.key, "there is no such category" + hint);
    } else {
        for (const auto& pCategory : fields_.categories()) {
            if (hint.empty() && parent == 0 && key == pCategory->category.pKey &&
                std::string_view(pCategory->category.pPlace).ends_with(key)) {
                hint = std::string(" (its place is ") + pCategory->category.pPlace + ")";
            }
        }
        add(Fault::UnknownMember, node, value.key, "nobody reads such a member" + hint);
    }
}

void DocumentCheck::checkUnread(NodeIndex node)
{
    const Bound& bound = fields_[node];
    const std::vector<FieldNode>& siblings = membersOf(document_[node].parent);
    const FieldNode* pField = bound.pField;
    if (fields_.category(bound).document == QvDatabaseCatalogDocument_Calibration && siblings.empty()) {
        const std::string first = fields_.category(bound).fields.front().field.pKey;
        add(Fault::NotRead, node, document_[node].key,
            "is passed over: calibration is read where " + first + " stands");
        return;
    }
    std::string other;
    for (const FieldNode& sibling : siblings) {
        if (&sibling != pField && sibling.field.offset == pField->field.offset &&
            childOf(document_[node].parent, sibling) != kNoNode) {
            other = sibling.field.pKey;
        }
    }
    add(Fault::NotRead, node, document_[node].key,
        "the key " + std::string(document_.key(node)) + " is passed over for " + other +
            ", which goes into the same field");
}

void DocumentCheck::checkKept(NodeIndex node)
{
    const DocumentNode& value = document_[node];
    const Bound& bound = fields_[node];
    if (isElement(bound)) {
        checkElement(node);
        return;
    }
    // A list without items is written so.
    const bool isSaved = bound.pField != nullptr && bound.open > 0 &&
                         bound.pField->field.count != QvDatabaseCatalogCount_One &&
                         bound.pField->field.count != QvDatabaseCatalogCount_Fixed;
    if (value.type == QvJsonValueType_Null && !isSaved) {
        add(Fault::NullValue, node, "null leaves it as it was");
    }
}

void DocumentCheck::checkWrongKind(NodeIndex node)
{
    const Bound& bound = fields_[node];
    if (isElement(bound)) {
        checkElement(node);
        return;
    }
    const bool wantsList = bound.pField == nullptr
                               ? fields_[node].hasCategory() == false && document_[node].type == QvJsonValueType_Object
                               : bound.open > 0 || bound.pField->field.count == QvDatabaseCatalogCount_Members;
    const char* pRest = "nothing of it is read";
    if (bound.pField != nullptr && wantsList) {
        switch (bound.pField->field.count) {
        case QvDatabaseCatalogCount_Schedule:
        case QvDatabaseCatalogCount_Measured:
        case QvDatabaseCatalogCount_Heap:
            pRest = "it is read as an empty one";
            break;
        case QvDatabaseCatalogCount_Members:
            pRest = "its numbers become 0";
            break;
        default:
            break;
        }
    }
    if (document_[node].key.isEmpty() && findings_.isRepeated(Fault::WrongKind, outerList(node))) {
        return;
    }
    add(Fault::WrongKind, node, std::string("is not ") + (wantsList ? "a list" : "an object") + "; " + pRest);
}

/// The list that all of a field's items stand in, of an item or a list in it.
NodeIndex DocumentCheck::outerList(NodeIndex node) const
{
    while (document_[node].parent != kNoNode && document_[document_[node].parent].type == QvJsonValueType_Array &&
           fields_[document_[node].parent].pField == fields_[node].pField) {
        node = document_[node].parent;
    }
    return node;
}

void DocumentCheck::checkTaken(NodeIndex node)
{
    const Bound& bound = fields_[node];
    if (bound.pField == nullptr) {
        checkAgain(node);
        checkCounts(node);
        return;
    }
    const CatalogField& field = bound.pField->field;
    if (isElement(bound)) {
        checkElement(node);
        return;
    }
    if (bound.open > 0 || (field.count == QvDatabaseCatalogCount_Members && !bound.pField->fields.empty())) {
        checkLength(node);
        if (bound.open == 1) {
            checkRising(node);
        }
        return;
    }
    checkCounts(node);
}

/// A single number, bool or text.
void DocumentCheck::checkElement(NodeIndex node)
{
    if (isPlain(document_, node, fields_[node].pField->field)) {
        return;
    }
    faults_.clear();
    checkValue(document_, node, fields_[node], faults_);
    for (const ValueFault& fault : faults_) {
        if (fault.fault == Fault::Unterminated && isEndedBehind(node)) {
            continue;
        }
        const bool isItem = document_[node].key.isEmpty();
        if (!isItem || !findings_.isRepeated(fault.fault, outerList(node))) {
            add(fault.fault, node, fault.text);
        }
    }
}

/// Whether a text that fills its field ends all the same, at the zero byte of the field behind it. What a document
/// doesn't hold is zero in an array that the load makes, and may be anything elsewhere.
bool DocumentCheck::isEndedBehind(NodeIndex text) const
{
    const Bound& bound = fields_[text];
    const std::size_t end = bound.offset + bound.pField->field.width;
    for (NodeIndex node = document_[document_[text].parent].first; node != kNoNode; node = document_[node].next) {
        const Bound& next = fields_[node];
        if (next.category == bound.category && next.heapOffset == bound.heapOffset && next.offset == end &&
            isElement(next) && (next.fate == Fate::Taken || next.fate == Fate::Kept)) {
            return next.fate == Fate::Taken && document_.string(node).empty() &&
                   (document_.integer(node) & 0xFF) == 0 &&
                   next.pField->field.element != QvDatabaseCatalogElement_Float;
        }
    }
    return bound.heapOffset != UINT32_MAX;
}

/// A class or section that stood there before.
void DocumentCheck::checkAgain(NodeIndex record)
{
    const Bound& bound = fields_[record];
    const bool isSection = fields_.kind() == DocumentKind::Ini;
    if (!isSection && !document_[record].key.isEmpty()) {
        return;
    }
    const auto [place, isFirst] = objects_.emplace(bound.category, record);
    if (isFirst) {
        return;
    }
    if (isSection) {
        add(Fault::DuplicateSection, record, document_[record].key,
            "the section stands at line " + lineOf(place->second) + " as well; both are read");
        return;
    }
    const NodeIndex name = document_.member(record, fields_.category(bound).category.pClassKey);
    add(Fault::DuplicateClass, record, document_[name].value,
        "the class stands at line " + lineOf(place->second) + " as well; what is read last counts");
    place->second = record;
}

std::vector<NodeIndex> DocumentCheck::versionTexts() const
{
    std::vector<NodeIndex> texts;
    for (NodeIndex node = 0; node < document_.nodes().size(); ++node) {
        const Bound& bound = fields_[node];
        if (bound.isTaken() && bound.pField != nullptr &&
            fields_.category(bound).document == QvDatabaseCatalogDocument_Version) {
            texts.push_back(node);
        }
    }
    return texts;
}

} // namespace qv::tools
