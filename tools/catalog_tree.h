#pragma once

// The catalog's categories and fields as lists and trees, for what looks at all of them.

#include <cstddef>
#include <string>
#include <vector>

#include <qv_database_c/database_catalog.h>

namespace qv::tools {

/// A field, and those of its record.
struct FieldNode {
    QvDatabaseCatalogField_t field;
    std::vector<FieldNode> fields;
};

/// The categories of a document, in its order. They are asked for once: the library works out each answer anew.
const std::vector<QvDatabaseCatalogCategory_t>& categoriesOf(QvDatabaseCatalogDocument_t document);

/// The fields of a category that the document carries, in its order; by key or, for one with a class, by class.
std::vector<FieldNode> fieldsOf(QvDatabaseCatalogDocument_t document, const QvDatabaseCatalogCategory_t& category);

std::vector<QvDatabaseCatalogValue_t> valuesOf(const QvDatabaseCatalogField_t& field);

/// Elements of a field in the record; a record that stands as a list of its numbers is one.
std::size_t elementsOf(const QvDatabaseCatalogField_t& field);

/// Whether a document carries a category.
bool isCarriedBy(const QvDatabaseCatalogCategory_t& category, QvDatabaseCatalogDocument_t document);

/// Name of a C type without what all of them share: "AutoFocus_3" of "QvDatabaseAutoFocus_3_t".
std::string shortType(const char* pRecord);

/// A number of the catalog as people write it.
std::string numberText(double number);

/// The range that is known of a field, such as "0..20"; empty where none is.
std::string rangeText(const QvDatabaseCatalogField_t& field);

} // namespace qv::tools
