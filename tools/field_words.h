#pragma once

// What the catalog says about a field, in words.

#include <string>
#include <vector>

#include <qv_database_c/database_catalog.h>

namespace qv::tools {

/// What a document is called, such as "tuning" or ".ini".
std::string documentName(QvDatabaseCatalogDocument_t document);

/// Dimensions in brackets, such as "[20][12]".
std::string extentsText(const QvDatabaseCatalogField_t& field);

/// The C member's type with its dimensions, such as "uint8_t[20]".
std::string typeText(const QvDatabaseCatalogField_t& field);

/// What a field is there for; `other` is the name of the field that its role names.
std::string roleText(const QvDatabaseCatalogField_t& field, const std::string& other);

/// What a document does otherwise than C with a member, in a few words each.
std::vector<std::string> oddities(const QvDatabaseCatalogField_t& field, const QvDatabaseCatalogField_t& member);

} // namespace qv::tools
