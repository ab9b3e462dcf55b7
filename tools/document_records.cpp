// Objects of records, their lists and values: what a load makes of each.

#include <algorithm>

#include "document_binder.h"

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;

} // namespace

/// The members of one object, which may be those of several records, and of places below it. Each key that may stand
/// here has a slot, which takes the last member of that key.
void FieldBinder::bindMembers(NodeIndex node, std::span<const Source> sources, const Stage* pStage)
{
    std::vector<std::string_view> keys;
    for (const Source& source : sources) {
        for (const FieldNode& field : *source.pFields) {
            keys.emplace_back(field.field.pKey);
        }
    }
    const std::size_t fieldNumber = keys.size();
    for (std::size_t i = 0; pStage != nullptr && i < pStage->members.size(); ++i) {
        keys.emplace_back(pStage->members[i].key);
    }
    const std::vector<NodeIndex> children = sortMembers(node, keys, sources.size() == 1 && fieldNumber == keys.size());
    std::size_t first = 0;
    for (const Source& source : sources) {
        bindSource(source, std::span(children).subspan(first, source.pFields->size()));
        first += source.pFields->size();
    }
    for (; first < keys.size(); ++first) {
        if (children[first] != kNoNode) {
            bindStage(children[first], pStage->members[first - fieldNumber]);
        }
    }
}

std::vector<NodeIndex> FieldBinder::sortMembers(NodeIndex object, std::span<const std::string_view> keys,
                                                bool areDistinct)
{
    std::vector<NodeIndex> children(keys.size(), kNoNode);
    std::size_t next = 0; // members mostly stand in the order of the fields
    for (NodeIndex child = document_[object].first; child != kNoNode; child = document_[child].next) {
        const std::string_view key = document_.key(child);
        bound(child).fate = Fate::Unknown;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const std::size_t slot = (next + i) % keys.size();
            if (keys[slot] != key) {
                continue;
            }
            if (children[slot] != kNoNode) {
                bound(children[slot]).fate = Fate::Doubled;
                bound(children[slot]).order = child;
            }
            children[slot] = child;
            bound(child).fate = Fate::Unseen;
            if (areDistinct) {
                next = slot + 1;
                break;
            }
        }
    }
    return children;
}

void FieldBinder::bindSource(const Source& source, std::span<const NodeIndex> children)
{
    const std::vector<FieldNode>& fields = *source.pFields;
    const DocumentCategory& category = *fields_.categories_[source.category];
    // Calibration is read as a whole, where its first member is there.
    const bool isPassedOver = category.document == QvDatabaseCatalogDocument_Calibration &&
                              source.pFields == &category.fields &&
                              (children[0] == kNoNode || document_.isEmpty(children[0]));
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (children[i] == kNoNode) {
            continue;
        }
        const CatalogField& field = fields[i].field;
        const bool isOlder = field.isTwin && i > 0 && children[i - 1] != kNoNode;
        if (field.direction == QvDatabaseCatalogDirection_WriteOnly || isPassedOver || isOlder) {
            const Fate passed = document_.isEmpty(children[i]) ? Fate::Kept : Fate::Unread;
            note(children[i], &fields[i], source, source.offset + field.offset, field.rank,
                 field.direction == QvDatabaseCatalogDirection_WriteOnly ? Fate::Written : passed);
            continue;
        }
        bindField(children[i], fields[i], source);
        if (field.pBound != nullptr) {
            cutToBound(children[i], field, fields, children);
        }
        // A second key for the field of another one is read behind it, and wins.
        for (std::size_t j = 0; field.direction == QvDatabaseCatalogDirection_ReadOnly && j < i; ++j) {
            if (children[j] != kNoNode && fields[j].field.pName != nullptr && fields[j].field.offset == field.offset &&
                fields[j].field.width == field.width && bound(children[i]).fate == Fate::Taken) {
                bound(children[j]).fate = Fate::Unread;
            }
        }
    }
}

/// A list that is read no further than another one goes.
void FieldBinder::cutToBound(NodeIndex list, const CatalogField& field, const std::vector<FieldNode>& fields,
                             std::span<const NodeIndex> children)
{
    std::size_t most = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const char* pCounter = fields[i].field.pCounter;
        if (pCounter != nullptr && std::string_view(pCounter) == field.pBound && children[i] != kNoNode &&
            document_[children[i]].type == QvJsonValueType_Array) {
            most = document_[children[i]].count;
        }
    }
    for (NodeIndex item = document_[list].first; item != kNoNode; item = document_[item].next) {
        if (document_[item].index >= most) {
            bound(item).fate = Fate::PastEnd;
            for (NodeIndex inner = item + 1;
                 inner < document_.nodes().size() && document_[inner].value.begin < document_[item].value.end;
                 ++inner) {
                bound(inner).fate = Fate::Unseen;
            }
        }
    }
}

void FieldBinder::bindField(NodeIndex node, const FieldNode& field, const Source& source)
{
    const std::size_t offset = source.offset + field.field.offset;
    if (field.field.pName == nullptr) {
        note(node, &field, source, source.offset, 0, Fate::Taken);
        bindRecord(node, {&field.fields, source.category, source.offset, source.heapOffset});
    } else if (field.field.count == QvDatabaseCatalogCount_Members) {
        bindNumbers(node, field, source);
    } else if (field.field.written == QvDatabaseCatalogElement_Record && field.field.rank == 0) {
        note(node, &field, source, offset, 0, Fate::Taken);
        bindRecord(node, {&field.fields, source.category, static_cast<std::uint32_t>(offset), source.heapOffset});
    } else if (field.field.written == QvDatabaseCatalogElement_Record) {
        bindRecords(node, field, source);
    } else if (field.field.rank == 0) {
        note(node, &field, source, offset, 0, fateOf(node, field.field, false));
    } else {
        bindList(node, field, source, 0, 0, field.field.extents[0]);
    }
}

/// The object of a record, which has been noted.
void FieldBinder::bindRecord(NodeIndex node, const Source& source)
{
    if (document_.isEmpty(node)) {
        bound(node).fate = Fate::Kept;
    } else if (document_[node].type != QvJsonValueType_Object) {
        bound(node).fate = Fate::WrongKind;
    } else {
        bindMembers(node, {&source, 1}, nullptr);
    }
}

/// A list of records.
void FieldBinder::bindRecords(NodeIndex node, const FieldNode& field, const Source& source)
{
    const bool isHeap = field.field.count == QvDatabaseCatalogCount_Heap;
    const std::size_t offset = source.offset + field.field.offset;
    Source item{&field.fields, source.category, static_cast<std::uint32_t>(offset), source.heapOffset};
    if (isHeap) {
        item.heapOffset = item.offset;
        item.offset = 0;
    }
    note(node, &field, item, item.offset, 1, Fate::Taken);
    if (document_.isEmpty(node)) {
        bound(node).fate = Fate::Kept;
        return;
    }
    if (document_[node].type != QvJsonValueType_Array) {
        bound(node).fate = Fate::WrongKind;
        return;
    }
    for (NodeIndex child = document_[node].first; child != kNoNode; child = document_[child].next) {
        const std::size_t index = document_[child].index;
        if (!isHeap && index >= field.field.extents[0]) {
            note(child, &field, item, item.offset, 0, Fate::PastEnd);
            continue;
        }
        note(child, &field, item, item.offset, 0, Fate::Taken);
        bindRecord(child, item);
        item.offset += static_cast<std::uint32_t>(field.field.width);
    }
}

/// A record that stands as the list of its numbers.
void FieldBinder::bindNumbers(NodeIndex node, const FieldNode& field, const Source& source)
{
    const std::size_t offset = source.offset + field.field.offset;
    note(node, &field, source, offset, 0, Fate::Taken);
    if (document_[node].type != QvJsonValueType_Array) {
        bound(node).fate = document_.isEmpty(node) ? Fate::Kept : Fate::WrongKind;
        return;
    }
    for (NodeIndex child = document_[node].first; child != kNoNode; child = document_[child].next) {
        const std::size_t index = document_[child].index;
        if (index < field.fields.size()) {
            const FieldNode& member = field.fields[index];
            note(child, &member, source, offset + member.field.offset, 0, fateOf(child, member.field, true));
        } else {
            note(child, &field, source, offset, 0, Fate::PastEnd);
        }
    }
}

/// Whether a list of two dimensions differs from its field in the number or length of rows.
bool FieldBinder::hasOddRows(NodeIndex node, const CatalogField& field) const
{
    bool isOdd = field.rank == 2 && document_[node].count != field.extents[0];
    for (NodeIndex row = document_[node].first; field.rank == 2 && row != kNoNode; row = document_[row].next) {
        isOdd = isOdd || document_[row].count != field.extents[1];
    }
    return isOdd;
}

/// A list of numbers or texts, or a row of it that takes `limit` items.
void FieldBinder::bindList(NodeIndex node, const FieldNode& field, const Source& source, std::size_t dimension,
                           std::size_t base, std::size_t limit)
{
    const CatalogField& list = field.field;
    const std::size_t open = list.rank - dimension;
    const std::size_t inner = dimension + 1 < list.rank ? list.extents[dimension + 1] : 1;
    const std::size_t below = inner * (dimension + 2 < list.rank ? list.extents[dimension + 2] : 1);
    note(node, &field, source, source.offset + list.offset + base * list.width, open, Fate::Taken);
    if (document_[node].type != QvJsonValueType_Array) {
        bound(node).fate = document_.isEmpty(node) ? Fate::Kept : Fate::WrongKind;
        return;
    }
    if (document_.isEmpty(node)) {
        bound(node).fate = Fate::Kept;
        return;
    }
    const std::size_t elements = list.extents[0] * list.extents[1] * list.extents[2];
    if (open == 1) {
        bindItems(node, field, source, base, limit);
        return;
    }
    const bool isInRows = dimension == 0 && hasOddRows(node, list) && fields_.isInRows(bound(node));
    for (NodeIndex child = document_[node].first; child != kNoNode; child = document_[child].next) {
        const std::size_t index = document_[child].index;
        // Such a row is stored at its number times its own length.
        const std::size_t rowBase = index * document_[child].count;
        if (isInRows && rowBase < elements) {
            bindList(child, field, source, 1, rowBase, elements - rowBase);
        } else if (isInRows || index >= limit) {
            note(child, &field, source, source.offset + list.offset + base * list.width, open - 1, Fate::PastEnd);
        } else {
            bindList(child, field, source, dimension + 1, base + index * below, inner);
        }
    }
}

/// The numbers or texts of a list or row.
void FieldBinder::bindItems(NodeIndex node, const FieldNode& field, const Source& source, std::size_t base,
                            std::size_t limit)
{
    const std::size_t begin = source.offset + field.field.offset + base * field.field.width;
    Bound item{&field, 0, source.heapOffset, order_, source.category, 0, Fate::Taken};
    for (NodeIndex child = document_[node].first; child != kNoNode; child = document_[child].next) {
        const std::size_t index = document_[child].index;
        item.offset = static_cast<std::uint32_t>(begin + index * field.field.width);
        ++item.order;
        item.fate = index < limit ? fateOf(child, field.field, true) : Fate::PastEnd;
        bound(child) = item;
    }
    order_ = item.order;
}

/// What a load makes of one number, bool or text.
Fate FieldBinder::fateOf(NodeIndex node, const CatalogField& field, bool isItem) const
{
    const DocumentNode& value = document_[node];
    const bool isText = value.type == QvJsonValueType_String;
    if (field.written == QvDatabaseCatalogElement_Text) {
        return isText ? Fate::Taken : document_.isEmpty(node) ? Fate::Kept : Fate::WrongKind;
    }
    if (document_.isEmpty(node) && !isItem) {
        return Fate::Kept;
    }
    if (value.type == QvJsonValueType_Null) {
        return Fate::Taken; // 0
    }
    return isText || value.isContainer() ? Fate::WrongKind : Fate::Taken;
}

} // namespace qv::tools
