#include "document_binder.h"

#include <algorithm>
#include <string_view>

namespace qv::tools {
namespace {

using CatalogDocument = QvDatabaseCatalogDocument_t;

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
    for (Stage& stage : members) {
        if (stage.key == name) {
            return stage;
        }
    }
    members.emplace_back().key = name;
    return members.back();
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
                bound(place->second).order = node;
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

} // namespace qv::tools
