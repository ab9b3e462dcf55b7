#include "document_binder.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace qv::tools {
namespace {

using CatalogDocument = QvDatabaseCatalogDocument_t;
using CatalogField = QvDatabaseCatalogField_t;

constexpr CatalogDocument kText[] = {QvDatabaseCatalogDocument_Version, QvDatabaseCatalogDocument_Simulator,
                                     QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Tuning};
constexpr CatalogDocument kMeta[] = {QvDatabaseCatalogDocument_Meta};
constexpr CatalogDocument kSimulatorMeta[] = {QvDatabaseCatalogDocument_Simulator};
constexpr CatalogDocument kIni[] = {QvDatabaseCatalogDocument_Initialization};

/// In the order in which a load reads them.
std::span<const CatalogDocument> documentsOf(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Meta:
        return kMeta;
    case DocumentKind::SimulatorMeta:
        return kSimulatorMeta;
    case DocumentKind::Ini:
        return kIni;
    default:
        return kText;
    }
}

std::string_view firstOf(std::string_view place)
{
    place.remove_prefix(std::min<std::size_t>(place.size(), 1));
    return place.substr(0, place.find('/'));
}

} // namespace

FieldBinder::Stage& FieldBinder::Stage::member(const std::string& name)
{
    if (name == "*") {
        items.resize(1);
        return items[0];
    }
    for (auto& [key, stage] : members) {
        if (key == name) {
            return stage;
        }
    }
    return members.emplace_back(name, Stage{}).second;
}

void FieldBinder::bind()
{
    fields_.bounds_.resize(document_.nodes().size());
    fields_.kind_ = kindOf();
    Stage root;
    for (const CatalogDocument document : documentsOf(fields_.kind_)) {
        addCategories(document, root);
    }
    if (document_.nodes().empty()) {
        return;
    }
    if (fields_.kind_ == DocumentKind::Ini) {
        bindIni();
    } else {
        bindStage(0, root);
    }
}

/// A document of metadata is told from others by what its members are.
DocumentKind FieldBinder::kindOf() const
{
    if (document_.form() == Form::Ini) {
        return DocumentKind::Ini;
    }
    if (document_.nodes().empty() || document_[0].type != QvJsonValueType_Object) {
        return DocumentKind::Text;
    }
    for (const auto& category : categoriesOf(QvDatabaseCatalogDocument_Simulator)) {
        if (isCarriedBy(category, QvDatabaseCatalogDocument_Meta)) {
            std::string_view place = category.pPlace;
            NodeIndex node = 0;
            while (!place.empty() && node != kNoNode) {
                node = document_.member(node, firstOf(place));
                place.remove_prefix(firstOf(place).size() + 1);
            }
            if (node != kNoNode && !document_.isEmpty(node)) {
                return DocumentKind::SimulatorMeta;
            }
        }
    }
    std::size_t known = 0;
    for (const CatalogDocument document : kText) {
        for (const auto& category : categoriesOf(document)) {
            const std::string_view first = firstOf(category.pPlace);
            known += !first.empty() && document_.member(0, first) != kNoNode ? 1U : 0U;
            for (const FieldNode& field : first.empty() ? fieldsOf(document, category) : std::vector<FieldNode>()) {
                known += document_.member(0, field.field.pKey) != kNoNode ? 1U : 0U;
            }
        }
        if (known != 0) {
            return DocumentKind::Text;
        }
    }
    for (const auto& category : categoriesOf(QvDatabaseCatalogDocument_Meta)) {
        for (const FieldNode& field : fieldsOf(QvDatabaseCatalogDocument_Meta, category)) {
            known += document_.member(0, field.field.pKey) != kNoNode ? 1U : 0U;
        }
    }
    return known != 0 ? DocumentKind::Meta : DocumentKind::Text;
}

void FieldBinder::addCategories(CatalogDocument document, Stage& root)
{
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
        const bool isMeta = isCarriedBy(category, QvDatabaseCatalogDocument_Meta);
        if (isMeta != (fields_.kind_ == DocumentKind::Meta || fields_.kind_ == DocumentKind::SimulatorMeta)) {
            continue;
        }
        const auto index = static_cast<std::uint16_t>(fields_.categories_.size());
        fields_.categories_.push_back(std::make_unique<DocumentCategory>(DocumentCategory{document, category, {}}));
        if (fields_.kind_ == DocumentKind::Ini) {
            continue; // a section's name is no path
        }
        Stage* pStage = &root;
        std::string_view place = category.pPlace;
        while (!place.empty()) {
            const std::string_view name = firstOf(place);
            pStage = &pStage->member(std::string(name));
            place.remove_prefix(name.size() + 1);
        }
        (category.pClass != nullptr ? pStage->classes : pStage->records).push_back(index);
    }
}

FieldBinder::Source FieldBinder::sourceOf(std::uint16_t category)
{
    DocumentCategory& made = *fields_.categories_[category];
    if (made.fields.empty()) {
        made.fields = fieldsOf(made.document, made.category);
    }
    return {&made.fields, category, 0, UINT32_MAX};
}

void FieldBinder::note(NodeIndex node, const FieldNode* pField, const Source& source, std::size_t offset,
                       std::size_t open, Fate fate)
{
    Bound& noted = bound(node);
    const Bound before = noted;
    noted = {pField,
             static_cast<std::uint32_t>(offset),
             source.heapOffset,
             ++order_,
             source.category,
             static_cast<std::uint8_t>(open),
             fate};
    if (before.fate != Fate::Unseen && before.category != noted.category && before.hasCategory()) {
        fields_.seconds_.emplace_back(node, before);
    }
}

// ------------------------------------------------------------------------------------------------------------ .ini

void FieldBinder::bindIni()
{
    bound(0).fate = Fate::Frame;
    std::map<std::uint16_t, std::map<const FieldNode*, NodeIndex>> seen; // a section may stand there twice
    for (NodeIndex node = document_[0].first; node != kNoNode; node = document_[node].next) {
        bound(node).fate = Fate::Unknown;
        for (std::size_t i = 0; i < fields_.categories_.size(); ++i) {
            if (document_[node].type == QvJsonValueType_Object &&
                document_.key(node) == fields_.categories_[i]->category.pPlace) {
                const auto category = static_cast<std::uint16_t>(i);
                bindSection(node, category, seen[category]);
            }
        }
    }
}

void FieldBinder::bindSection(NodeIndex section, std::uint16_t category, std::map<const FieldNode*, NodeIndex>& seen)
{
    const Source source = sourceOf(category);
    note(section, nullptr, source, 0, 0, Fate::Taken);
    for (NodeIndex node = document_[section].first; node != kNoNode; node = document_[node].next) {
        const auto field =
            std::find_if(source.pFields->begin(), source.pFields->end(),
                         [&](const FieldNode& candidate) { return document_.key(node) == candidate.field.pKey; });
        if (field == source.pFields->end()) {
            bound(node).fate = Fate::Unknown;
            continue;
        }
        const bool hasValue = document_[node].type == QvJsonValueType_String;
        note(node, &*field, source, field->field.offset, 0, hasValue ? Fate::Taken : Fate::Kept);
        if (hasValue) {
            const auto [place, isFirst] = seen.emplace(&*field, node);
            if (!isFirst) {
                bound(place->second).fate = Fate::Doubled;
                place->second = node;
            }
        }
    }
}

// ------------------------------------------------------------------------------------------------------------ JSON

/// What stands at a fixed place of the document.
void FieldBinder::bindStage(NodeIndex node, const Stage& stage)
{
    const bool isRecord = stage.records.size() == 1 && stage.members.empty();
    if (isRecord) {
        note(node, nullptr, sourceOf(stage.records[0]), 0, 0, Fate::Taken);
    } else {
        bound(node).fate = Fate::Frame;
    }
    const bool isList = !stage.items.empty();
    if (document_[node].type != (isList ? QvJsonValueType_Array : QvJsonValueType_Object)) {
        bound(node).fate = document_.isEmpty(node) ? Fate::Kept : Fate::WrongKind;
        return;
    }
    if (isList) {
        for (NodeIndex item = document_[node].first; item != kNoNode; item = document_[item].next) {
            bindItem(item, stage.items[0]);
        }
        return;
    }
    if (document_.isEmpty(node)) {
        bound(node).fate = Fate::Kept;
    }
    std::vector<Source> sources;
    for (const std::uint16_t category : stage.records) {
        sources.push_back(sourceOf(category));
    }
    bindMembers(node, sources, &stage);
}

/// An item of a list of classes. One without a class is the object of all records there that have none.
void FieldBinder::bindItem(NodeIndex node, const Stage& stage)
{
    const char* pClassKey = fields_.categories_[stage.classes[0]]->category.pClassKey;
    const NodeIndex name = document_.member(node, pClassKey);
    if (name == kNoNode || document_.isEmpty(name)) {
        if (stage.records.empty()) {
            bound(node).fate = Fate::Unknown;
            return;
        }
        bindStage(node, stage);
        return;
    }
    for (const std::uint16_t index : stage.classes) {
        if (document_[name].type == QvJsonValueType_String &&
            document_.string(name) == fields_.categories_[index]->category.pClass) {
            std::vector<Source> sources{sourceOf(index)};
            note(node, nullptr, sources[0], 0, 0, Fate::Taken);
            bindMembers(node, sources, nullptr);
            if (bound(name).fate == Fate::Unknown) {
                bound(name).fate = Fate::Frame; // some records keep their class, others don't
            }
            return;
        }
    }
    bound(node).fate = Fate::Unknown;
    bound(name).fate = Fate::Unknown;
}

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
        keys.emplace_back(pStage->members[i].first);
    }
    const std::vector<NodeIndex> children = sortMembers(node, keys, sources.size() == 1 && fieldNumber == keys.size());
    std::size_t first = 0;
    for (const Source& source : sources) {
        bindSource(source, std::span(children).subspan(first, source.pFields->size()));
        first += source.pFields->size();
    }
    for (; first < keys.size(); ++first) {
        if (children[first] != kNoNode) {
            bindStage(children[first], pStage->members[first - fieldNumber].second);
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
        // A second key for the field of another one is read behind it, and wins.
        for (std::size_t j = 0; field.direction == QvDatabaseCatalogDirection_ReadOnly && j < i; ++j) {
            if (children[j] != kNoNode && fields[j].field.pName != nullptr && fields[j].field.offset == field.offset &&
                fields[j].field.width == field.width && bound(children[i]).fate == Fate::Taken) {
                bound(children[j]).fate = Fate::Unread;
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

/// A list of numbers or texts, or a row of it. A row that begins where the lengths of the rows tell has a stride of its
/// own.
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
    const bool isInRows = dimension == 0 && hasOddRows(node, list) && fields_.isInRows(bound(node));
    for (NodeIndex child = document_[node].first; child != kNoNode; child = document_[child].next) {
        const std::size_t index = document_[child].index;
        if (isInRows) {
            // Each row is stored at its number times its own length.
            bindList(child, field, source, 1, index * document_[child].count, SIZE_MAX);
        } else if (index >= limit || base + index * below >= elements) {
            note(child, &field, source, source.offset + list.offset + base * list.width, open - 1, Fate::PastEnd);
        } else if (open == 1) {
            note(child, &field, source, source.offset + list.offset + (base + index) * list.width, 0,
                 fateOf(child, list, true));
        } else {
            bindList(child, field, source, dimension + 1, base + index * below, inner);
        }
    }
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
