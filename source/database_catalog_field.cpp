// A field of the catalog: what a table's row says of the document, joined with what the facts say of the C member.

#include "database_catalog.h"
#include "database_registry.h"

namespace qv::database {
namespace {

QvDatabaseCatalogElement_t publicElement(Element element)
{
    switch (element) {
    case Element::Bool:
        return QvDatabaseCatalogElement_Bool;
    case Element::Integer:
        return QvDatabaseCatalogElement_Integer;
    case Element::Float:
        return QvDatabaseCatalogElement_Float;
    case Element::Double:
        return QvDatabaseCatalogElement_Double;
    case Element::Text:
        return QvDatabaseCatalogElement_Text;
    case Element::Record:
        break;
    }
    return QvDatabaseCatalogElement_Record;
}

// These three are the public enumerations under other names.
static_assert(static_cast<int>(Count::Heap) == QvDatabaseCatalogCount_Heap);
static_assert(static_cast<int>(Direction::ReadWhileWriting) == QvDatabaseCatalogDirection_ReadWhileWriting);
static_assert(static_cast<int>(Role::Handle) == QvDatabaseCatalogRole_Handle);

/// The member at a place in a record: the record named pRecord that begins there, or else the scalar.
const Member* memberAt(const Type& type, std::size_t offset, std::string_view record)
{
    for (const Member& member : membersOf(type)) {
        const std::size_t size = member.number() * member.width;
        if (offset < member.offset || offset >= member.offset + size) {
            continue;
        }
        if (member.type == kNoType || member.isPointer) {
            return &member;
        }
        const Type& nested = recordType(member.type);
        if (offset == member.offset && record == factText(nested.name)) {
            return &member;
        }
        return memberAt(nested, (offset - member.offset) % member.width, record);
    }
    return nullptr;
}

/// The member of the record itself that stands at a place.
const Member* findMember(const Type& type, std::size_t offset)
{
    for (const Member& member : membersOf(type)) {
        if (member.offset == offset) {
            return &member;
        }
    }
    return nullptr;
}

void addMember(const Type& owner, const Member& member, QvDatabaseCatalogField_t& field)
{
    field.pName = factText(member.name);
    field.pMeaning = factText(member.meaning);
    field.element = member.isPointer ? QvDatabaseCatalogElement_Pointer : publicElement(member.element);
    field.isSigned = member.isSigned;
    field.pUnit = member.unit == 0 ? nullptr : kUnits[member.unit];
    field.minimum = member.minimum;
    field.maximum = member.maximum;
    field.valueNumber = namedValuesOf(member.enumeration).size();
    field.internal[kEnumeration] = static_cast<std::intptr_t>(member.enumeration);
    field.role = static_cast<QvDatabaseCatalogRole_t>(member.role);
    if (member.role == Role::CurveX || member.role == Role::CurveY || member.role == Role::CountOf) {
        const Member& other = *findMember(owner, member.other);
        field.pOther = factText(other.name);
        field.internal[kIsKept] = other.isPointer ? 1 : 0;
    }
    if (member.role == Role::Handle || member.isPointer) {
        field.internal[kIsKept] = 1;
    }
    field.roleRows = member.rows;
    field.roleColumns = member.columns;
}

/// The dimensions of a field as the document holds them.
void addExtents(const Field& row, QvDatabaseCatalogField_t& field)
{
    field.rank = row.rank;
    for (std::size_t i = 0; i < row.rank; ++i) {
        field.extents[i] = row.extents[i];
    }
    if (row.columns != 0) {
        field.rank = 2;
        field.extents[0] = row.number() / row.columns;
        field.extents[1] = row.columns;
    } else if (row.count == Count::Members) {
        field.rank = 1;
        field.extents[0] = row.table->rows.size();
    } else if (row.count != Count::One && row.rank == 0) {
        field.rank = 1; // a record that is the first item of a list, or a list on the heap, whose length is its own
        field.extents[0] = row.count == Count::Heap ? 0 : 1;
    }
}

/// Whether a row is an object of the document that groups members of the record itself.
bool isGroup(const Table& table, const Field& row)
{
    return row.table != nullptr && std::string_view{row.table->record} == table.record;
}

} // namespace

Scope::Scope(const Entry& entry) : table_(entry.table)
{
    type_ = findRecordType(table_ != nullptr ? table_->record : findCategory(entry.key)->record);
}

const char* Scope::key(std::size_t index) const
{
    return table_ != nullptr ? table_->rows[index].key : factText(membersOf(*type_)[index].name);
}

Scope Scope::nested(std::size_t index) const
{
    if (table_ != nullptr) {
        const Table* pTable = table_->rows[index].table;
        return pTable == nullptr ? Scope() : Scope(*pTable);
    }
    const Member& member = membersOf(*type_)[index];
    return member.type == kNoType || member.isPointer ? Scope() : Scope(recordType(member.type));
}

QvDatabaseCatalogField_t Scope::field(std::size_t index, std::size_t depth) const
{
    QvDatabaseCatalogField_t field{};
    field.pKey = key(index);
    field.depth = depth;
    field.extents[0] = field.extents[1] = field.extents[2] = 1;
    field.minimum = -kOpen;
    field.maximum = kOpen;
    const Member* pMember = nullptr;
    if (table_ == nullptr) {
        pMember = &membersOf(*type_)[index];
        field.written = pMember->isPointer ? QvDatabaseCatalogElement_Pointer : publicElement(pMember->element);
        field.isWrittenSigned = pMember->isSigned;
        field.width = pMember->width;
        field.offset = pMember->offset;
        field.rank = pMember->rank;
        for (std::size_t i = 0; i < pMember->rank; ++i) {
            field.extents[i] = pMember->extents[i];
        }
        field.pRecord = pMember->type == kNoType ? nullptr : factText(recordType(pMember->type).name);
    } else {
        const Field& row = table_->rows[index];
        field.element = publicElement(row.element);
        field.written = publicElement(row.written);
        field.isWrittenSigned = row.isWrittenSigned;
        field.width = row.width;
        field.offset = row.offset;
        addExtents(row, field);
        field.count = static_cast<QvDatabaseCatalogCount_t>(row.count);
        field.direction = static_cast<QvDatabaseCatalogDirection_t>(row.direction);
        field.isTwin = row.isTwin;
        if (row.counter.width != 0) {
            field.pCounter = factText(findMember(*type_, row.counter.offset)->name);
            field.counterOffset = row.counter.offset;
            field.counterWidth = row.counter.width;
        }
        if (row.bound.width != 0) {
            field.pBound = factText(findMember(*type_, row.bound.offset)->name);
        }
        field.pRecord = row.table == nullptr ? nullptr : row.table->record;
        if (!isGroup(*table_, row)) {
            pMember = memberAt(*type_, row.offset, field.pRecord == nullptr ? "" : field.pRecord);
        }
    }
    if (pMember != nullptr) {
        const QvDatabaseCatalogElement_t element = field.element;
        addMember(recordType(pMember->owner), *pMember, field);
        if (table_ != nullptr && pMember->isPointer) {
            field.element = element; // the records behind the pointer
        }
    }
    return field;
}

std::uintptr_t Scope::handle(QvDatabaseCatalogDocument_t document) const
{
    return isRaw(document) ? reinterpret_cast<std::uintptr_t>(type_) : reinterpret_cast<std::uintptr_t>(table_);
}

Scope Scope::ofHandle(std::uintptr_t handle, QvDatabaseCatalogDocument_t document)
{
    return isRaw(document) ? Scope(*reinterpret_cast<const Type*>(handle))
                           : Scope(*reinterpret_cast<const Table*>(handle));
}

} // namespace qv::database
