#include "field_index.h"

#include <cstddef>
#include <string_view>

namespace qv::tools {
namespace {

using CatalogField = QvDatabaseCatalogField_t;

std::size_t sizeOf(const CatalogField& field)
{
    return field.width * field.extents[0] * field.extents[1] * field.extents[2];
}

std::vector<Member> membersFrom(const std::vector<FieldNode>& nodes, bool isBehindPointer)
{
    std::vector<Member> members;
    members.reserve(nodes.size());
    for (const FieldNode& node : nodes) {
        members.push_back({node.field, membersFrom(node.fields, isBehindPointer), {}, isBehindPointer});
    }
    return members;
}

/// The member at a place in a record: the record of that type that begins there, or else what is no record.
Member* memberAt(std::vector<Member>& members, std::size_t offset, const char* pRecord)
{
    for (Member& member : members) {
        const CatalogField& field = member.field;
        if (offset < field.offset || offset >= field.offset + sizeOf(field)) {
            continue;
        }
        const bool isSameRecord = offset == field.offset && pRecord != nullptr && field.pRecord != nullptr &&
                                  std::string_view{pRecord} == field.pRecord;
        if (field.element != QvDatabaseCatalogElement_Record || isSameRecord) {
            return &member;
        }
        return memberAt(member.members, (offset - field.offset) % field.width, pRecord);
    }
    return nullptr;
}

/// Notes the items of a list that stands for a record: its members have indices there, and no names.
void addItems(QvDatabaseCatalogDocument_t document, const FieldNode& node, std::vector<Member>& members)
{
    for (std::size_t i = 0; i < node.fields.size(); ++i) {
        const CatalogField& field = node.fields[i].field;
        if (Member* pMember = memberAt(members, field.offset, nullptr); pMember != nullptr) {
            pMember->stands.push_back({document, node.field.pKey + ("[" + std::to_string(i) + "]"), field});
        }
    }
}

/// Notes the places of a document's fields at the members that they are. The document may hold a record's members in
/// objects of their own, or without the records that C puts around them.
void addStands(QvDatabaseCatalogDocument_t document, const std::vector<FieldNode>& nodes, const std::string& prefix,
               std::vector<Member>& members)
{
    for (const FieldNode& node : nodes) {
        const std::string key = prefix + node.field.pKey;
        if (node.field.pName == nullptr) {
            addStands(document, node.fields, key + "/", members);
            continue;
        }
        Member* pMember = memberAt(members, node.field.offset, node.field.pRecord);
        if (pMember == nullptr) {
            continue;
        }
        pMember->stands.push_back({document, key, node.field});
        if (pMember->field.element == QvDatabaseCatalogElement_Pointer && pMember->members.empty()) {
            pMember->members = membersFrom(node.fields, true);
        }
        if (node.field.count == QvDatabaseCatalogCount_Members) {
            addItems(document, node, pMember->members);
        } else {
            addStands(document, node.fields, node.field.isTwin ? key + "/" : "", pMember->members);
        }
    }
}

} // namespace

std::vector<IndexedCategory> indexFields()
{
    std::vector<IndexedCategory> index;
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(QvDatabaseCatalogDocument_Memory)) {
        index.push_back({category, {}, {}, membersFrom(fieldsOf(QvDatabaseCatalogDocument_Memory, category), false)});
    }
    for (int i = QvDatabaseCatalogDocument_Tuning; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        for (const QvDatabaseCatalogCategory_t& entry : categoriesOf(document)) {
            for (IndexedCategory& indexed : index) {
                if (std::string_view{indexed.category.pKey} == entry.pKey) {
                    indexed.entries.push_back(entry);
                    indexed.documents.push_back(document);
                    addStands(document, fieldsOf(document, entry), "", indexed.members);
                }
            }
        }
    }
    return index;
}

} // namespace qv::tools
