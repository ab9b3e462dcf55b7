#pragma once

// What the sources of the catalog share: the fields of a record as one document carries them, from tables and facts.

#include <cstring>

#include <qv_database_c/database_catalog.h>

#include "database_facts.h"
#include "database_field.h"

namespace qv::database {

/// A category as one document carries it.
struct Entry {
    const char* key = nullptr;
    const char* place = ""; ///< see QvDatabaseCatalogCategory_t; null: the key behind `folder`
    const char* className = nullptr;
    const char* classKey = nullptr;
    const Table* table = nullptr; ///< null in memory and image, whose fields are the members
    bool isWritten = true;
};

/// The categories of a document, by their place in its order. False past the last.
bool entryAt(QvDatabaseCatalogDocument_t document, std::size_t index, Entry& entry);

/// The category of a document with this key or class. False where it carries none.
bool findEntry(QvDatabaseCatalogDocument_t document, std::string_view name, Entry& entry);

/// The fields of one record: the rows of a table or, in memory and image, the members of a type.
class Scope {
public:
    Scope() = default;
    explicit Scope(const Table& table) : table_(&table), type_(findRecordType(table.record)) {}
    explicit Scope(const Type& type) : type_(&type) {}
    /// Of a category's record.
    explicit Scope(const Entry& entry);

    explicit operator bool() const { return type_ != nullptr; }
    std::size_t recordSize() const { return type_->size; }
    std::size_t size() const { return table_ != nullptr ? table_->rows.size() : membersOf(*type_).size(); }
    const char* key(std::size_t index) const;
    /// The fields of a field that is a record.
    Scope nested(std::size_t index) const;
    /// Everything that is known of a field.
    QvDatabaseCatalogField_t field(std::size_t index, std::size_t depth) const;

    /// As a number that a public struct can hold.
    std::uintptr_t handle(QvDatabaseCatalogDocument_t document) const;
    static Scope ofHandle(std::uintptr_t handle, QvDatabaseCatalogDocument_t document);

private:
    const Table* table_ = nullptr;
    const Type* type_ = nullptr;
};

/// What the library keeps in QvDatabaseCatalogField_t::internal: the enumeration, and whether the field is the library's
/// own business, such as a handle, which must not be set from outside.
enum : std::size_t { kEnumeration, kIsKept };

/// Whether a document names its fields as C does.
constexpr bool isRaw(QvDatabaseCatalogDocument_t document)
{
    return document == QvDatabaseCatalogDocument_Memory || document == QvDatabaseCatalogDocument_Image;
}

/// Hands a struct to the caller, as much of it as the caller has room for. 0, or 13 for a size that never was.
template <class T>
int handOver(const T& from, T* pTo)
{
    const std::size_t size = pTo->size;
    if (size < sizeof(T)) {
        return 13;
    }
    *pTo = from;
    pTo->size = size;
    return 0;
}

} // namespace qv::database
