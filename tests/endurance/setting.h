#pragma once

// What the tests of this folder share. Each has a short setting, for every build, and a long one, for the night.

#include <cstdlib>
#include <filesystem>
#include <iterator>

#include <qv_database_c/database_catalog.h>

namespace qv::test {

inline bool isNight()
{
    return std::getenv("QV_NIGHT") != nullptr;
}

/// How many files there are in a folder.
inline long files(const std::filesystem::path& folder)
{
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

/// The fields of a document, by a walk over all of them.
inline std::size_t fieldNumber(QvDatabaseCatalogDocument_t document)
{
    std::size_t number = 0;
    QvDatabaseCatalogCategory_t category{};
    category.size = sizeof category;
    for (std::size_t i = 0; QvDatabaseCatalog_category(document, i, &category) == 0; ++i) {
        QvDatabaseCatalogCursor_t cursor{};
        cursor.size = sizeof cursor;
        QvDatabaseCatalogField_t field{};
        field.size = sizeof field;
        QvDatabaseCatalog_walk(document, category.pKey, &cursor);
        while (QvDatabaseCatalog_next(&cursor, &field) == 0) {
            ++number;
        }
    }
    return number;
}

} // namespace qv::test
