// Lists, their lengths and counts, and what a document lacks.

#include <algorithm>
#include <string_view>

#include "check_document.h"

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;

std::string number(std::size_t count)
{
    return std::to_string(count);
}

bool isRecord(const CatalogField& field)
{
    return field.written == QvDatabaseCatalogElement_Record;
}

/// Items that a list wants at its level.
std::size_t wantedItems(const FieldNode& node, std::size_t open)
{
    const CatalogField& field = node.field;
    return field.count == QvDatabaseCatalogCount_Members ? node.fields.size() : field.extents[field.rank - open];
}

std::string countText(std::size_t count)
{
    return number(count) + (count == 1 ? " item" : " items");
}

} // namespace

/// Whether rows of a list differ in length.
bool DocumentCheck::isRagged(NodeIndex list) const
{
    const NodeIndex first = document_[list].first;
    for (NodeIndex row = first; row != kNoNode; row = document_[row].next) {
        if (document_[row].type == QvJsonValueType_Array && document_[row].count != document_[first].count) {
            return true;
        }
    }
    return false;
}

void DocumentCheck::checkLength(NodeIndex list)
{
    const Bound& bound = fields_[list];
    const CatalogField& field = bound.pField->field;
    const std::size_t count = document_[list].count;
    const std::size_t wanted = wantedItems(*bound.pField, bound.open);
    if (document_[list].isBroken || field.count == QvDatabaseCatalogCount_Heap) {
        return;
    }
    if (field.count == QvDatabaseCatalogCount_Measured && count > wanted) {
        // The count takes the low bytes before it is compared.
        const std::size_t stored = count & ((std::size_t{1} << (8 * field.counterWidth)) - 1);
        add(stored > wanted ? Fault::LoadFails : Fault::TooLong, list,
            "a list of " + countText(count) + " for at most " + number(wanted) +
                (stored > wanted ? ", and the load fails (6)" : ", which counts as " + number(stored)));
        return;
    }
    const bool isPart = bound.open > 0 && bound.open < field.rank;
    if (!isRecord(field) && bound.open > 1 && isRagged(list)) {
        checkRows(list);
    } else if (!isPart || !isRagged(document_[list].parent)) {
        checkEnds(list, count, wanted);
    }
}

/// The first row that isn't as long as those of the field.
void DocumentCheck::checkRows(NodeIndex list)
{
    const Bound& bound = fields_[list];
    const std::size_t wanted = wantedItems(*bound.pField, bound.open - 1);
    NodeIndex odd = document_[list].first;
    while (document_[odd].next != kNoNode && document_[odd].count == wanted) {
        odd = document_[odd].next;
    }
    add(Fault::RaggedRows, odd,
        "a row of " + countText(document_[odd].count) + ", where the field has rows of " + number(wanted));
}

/// What a list has too much or lacks.
void DocumentCheck::checkEnds(NodeIndex list, std::size_t count, std::size_t wanted)
{
    const Bound& bound = fields_[list];
    const CatalogField& field = bound.pField->field;
    NodeIndex past = document_[list].first;
    while (past != kNoNode && document_[past].index < wanted && fields_[past].fate != Fate::PastEnd) {
        past = document_[past].next;
    }
    if (past != kNoNode && document_[past].index < wanted && field.pBound != nullptr) {
        std::string other = field.pBound;
        for (const FieldNode& sibling : membersOf(document_[list].parent)) {
            const char* pCounter = sibling.field.pCounter;
            other = pCounter != nullptr && other == pCounter ? sibling.field.pKey : other;
        }
        add(Fault::Bounded, past, "is passed over: the list is read as far as " + other + " goes");
        return;
    }
    if (past != kNoNode) {
        const bool runsOver = field.rank == 2 && fields_.isInRows(bound);
        if (!findings_.isRepeated(Fault::TooLong, outerList(list))) {
            add(Fault::TooLong, past,
                "a list of " + countText(count) + " for " + number(wanted) +
                    (runsOver ? "; the others run over into the fields behind it" : "; the others are passed over"));
        }
        return;
    }
    const bool mayBeShort =
        isRecord(field) ? field.count != QvDatabaseCatalogCount_Fixed : field.written == QvDatabaseCatalogElement_Text;
    if (count < wanted && !mayBeShort && !findings_.isRepeated(Fault::TooShort, outerList(list))) {
        const bool isCleared = field.count == QvDatabaseCatalogCount_Members;
        add(Fault::TooShort, list,
            "a list of " + countText(count) + " for " + number(wanted) +
                (isCleared ? "; the others become 0" : "; the others keep their values"));
    }
}

/// Gains and positions of curves rise. Zeros at the end are points that are not in use, and a list of one number alone
/// holds the distances between points.
void DocumentCheck::checkRising(NodeIndex list)
{
    const CatalogField& field = fields_[list].pField->field;
    if (field.role != QvDatabaseCatalogRole_GainAxis && field.role != QvDatabaseCatalogRole_CurveX) {
        return;
    }
    std::vector<NodeIndex> items;
    for (NodeIndex item = document_[list].first; item != kNoNode; item = document_[item].next) {
        items.push_back(item);
    }
    while (!items.empty() && document_.number(items.back()) == 0) {
        items.pop_back();
    }
    if (std::all_of(items.begin(), items.end(),
                    [&](NodeIndex item) { return document_.number(item) == document_.number(items[0]); })) {
        return;
    }
    for (std::size_t i = 1; i < items.size(); ++i) {
        if (document_.number(items[i]) <= document_.number(items[i - 1])) {
            add(Fault::NotRising, items[i],
                std::string(document_.slice(document_[items[i]].value)) + " doesn't rise from " +
                    std::string(document_.slice(document_[items[i - 1]].value)) + " before it");
            return;
        }
    }
}

NodeIndex DocumentCheck::childOf(NodeIndex record, const FieldNode& field) const
{
    for (NodeIndex child = document_[record].first; child != kNoNode; child = document_[child].next) {
        if (fields_[child].pField == &field) {
            return child;
        }
    }
    return kNoNode;
}

/// Counts that stand beside their lists.
void DocumentCheck::checkCounts(NodeIndex record)
{
    const std::vector<FieldNode>& fields = membersOf(record);
    for (const FieldNode& counter : fields) {
        if (counter.field.role != QvDatabaseCatalogRole_CountOf || counter.field.pOther == nullptr) {
            continue;
        }
        const NodeIndex count = childOf(record, counter);
        for (const FieldNode& list : fields) {
            if (list.field.pName == nullptr || std::string_view(list.field.pName) != counter.field.pOther) {
                continue;
            }
            const NodeIndex items = childOf(record, list);
            if (count == kNoNode || items == kNoNode || document_[items].isBroken) {
                continue;
            }
            const double stated = document_.number(count);
            const std::size_t there = document_[items].count;
            const bool isExact = list.field.count == QvDatabaseCatalogCount_Counted;
            const bool isTooMany = stated > static_cast<double>(there);
            if (isTooMany || (isExact && stated != static_cast<double>(there))) {
                add(Fault::CountMismatch, count,
                    "counts " + shortNumber(stated) + ", and " + list.field.pKey + " has " + countText(there));
            }
        }
    }
}

void DocumentCheck::findMissing()
{
    const auto isWanted = [](const CatalogField& field) {
        return !field.isTwin && field.direction == QvDatabaseCatalogDirection_Both;
    };
    std::vector<bool> isThere(fields_.categories().size());
    for (NodeIndex node = 0; node < document_.nodes().size(); ++node) {
        const Bound& bound = fields_[node];
        if (!bound.hasCategory() || document_[node].type != QvJsonValueType_Object ||
            (bound.fate != Fate::Taken && bound.fate != Fate::Kept)) {
            continue;
        }
        isThere[bound.category] = true;
        for (const FieldNode& field : membersOf(node)) {
            if (!isWanted(field.field) || childOf(node, field) != kNoNode) {
                continue;
            }
            const bool isEmptied = field.field.count == QvDatabaseCatalogCount_Schedule ||
                                   field.field.count == QvDatabaseCatalogCount_Measured ||
                                   field.field.count == QvDatabaseCatalogCount_Heap;
            const bool isCleared = field.field.count == QvDatabaseCatalogCount_Members;
            const DocumentNode& value = document_[node];
            add(Fault::Missing, node, value.key.isEmpty() ? Span{value.value.begin, value.value.begin + 1} : value.key,
                std::string("lacks ") + field.field.pKey +
                    (isEmptied   ? ", which empties the list"
                     : isCleared ? ", whose numbers become 0"
                                 : ""));
        }
    }
    // Categories count as missing where the document has others of its kind.
    for (std::size_t i = 0; i < isThere.size(); ++i) {
        const DocumentCategory& missing = *fields_.categories()[i];
        bool hasKin = false;
        for (std::size_t j = 0; j < isThere.size(); ++j) {
            hasKin = hasKin || (isThere[j] && fields_.categories()[j]->document == missing.document);
        }
        if (hasKin && !isThere[i] && missing.category.isWritten) {
            findings_.add(Fault::Missing, Span{0, 0}, tree_.category(missing.category.pKey).name,
                          "the document lacks the category");
        }
    }
}

} // namespace qv::tools
