// Prints the table of docs/formats.md that tells which members of each category come through which file, from the
// catalog.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <qv_database_c/database_catalog.h>
#include <qv_database_c/qv_database.h>

namespace {

/// What a file is made of.
struct File {
    const char* name;
    std::vector<QvDatabaseCatalogDocument_t> documents;
};

const File kFiles[] = {
    {"text, standard",
     {QvDatabaseCatalogDocument_Tuning, QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Version}},
    {"text, simulator",
     {QvDatabaseCatalogDocument_Simulator, QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Version}},
    {"`.ini`", {QvDatabaseCatalogDocument_Initialization}},
    {"image", {QvDatabaseCatalogDocument_Image}},
    {"metadata", {QvDatabaseCatalogDocument_Meta}},
};

/// Calls use(field, places) for each field of a category in a document; places are those of the field's record, one for
/// each time that it stands in the category's.
template <class Use>
void walk(QvDatabaseCatalogDocument_t document, const char* pKey, Use use)
{
    QvDatabaseCatalogCursor_t cursor{};
    cursor.size = sizeof cursor;
    QvDatabaseCatalog_walk(document, pKey, &cursor);
    std::vector<std::vector<std::size_t>> places{{0}};
    QvDatabaseCatalogField_t field{};
    field.size = sizeof field;
    while (QvDatabaseCatalog_next(&cursor, &field) == 0) {
        places.resize(field.depth + 1);
        use(field, places.back());
        if (field.element == QvDatabaseCatalogElement_Record) {
            std::vector<std::size_t> nested;
            for (const std::size_t place : places.back()) {
                // None for an array on the heap, whose extent is 0.
                for (std::size_t i = 0; i < field.extents[0] * field.extents[1] * field.extents[2]; ++i) {
                    nested.push_back(place + field.offset + i * field.width);
                }
            }
            places.push_back(std::move(nested));
        }
    }
}

std::size_t lengthOf(const QvDatabaseCatalogField_t& field)
{
    return field.width * field.extents[0] * field.extents[1] * field.extents[2];
}

/// What of a record a file carries in both directions, byte by byte. A list counted by its own length carries its
/// counter, and one on the heap the pointer to it.
struct Carried {
    std::vector<bool> bytes;
    bool isCarried = false; ///< by a codec at all, be it in one direction
    bool isWritten = false;
};

void add(QvDatabaseCatalogDocument_t document, const char* pKey, Carried& carried)
{
    QvDatabaseCatalogCategory_t category{};
    category.size = sizeof category;
    for (std::size_t i = 0; QvDatabaseCatalog_category(document, i, &category) == 0; ++i) {
        if (std::strcmp(category.pKey, pKey) == 0) {
            carried.isCarried = true;
            carried.isWritten = carried.isWritten || category.isWritten;
        }
    }
    const auto mark = [&](std::size_t offset, std::size_t length) {
        std::fill_n(carried.bytes.begin() + static_cast<std::ptrdiff_t>(offset), length, true);
    };
    std::size_t oneWay = SIZE_MAX; // depth of the record that is carried in one direction alone, and all in it
    walk(document, pKey, [&](const QvDatabaseCatalogField_t& field, const std::vector<std::size_t>& places) {
        if (field.depth <= oneWay) {
            oneWay = field.direction == QvDatabaseCatalogDirection_Both ? SIZE_MAX : field.depth;
        }
        if (oneWay != SIZE_MAX) {
            return;
        }
        for (const std::size_t place : places) {
            if (field.count >= QvDatabaseCatalogCount_Measured) { // or a schedule, or on the heap
                mark(place + field.counterOffset, field.counterWidth);
            }
            if (field.count == QvDatabaseCatalogCount_Heap) {
                mark(place + field.offset, sizeof(void*));
            } else if (field.element != QvDatabaseCatalogElement_Record) {
                mark(place + field.offset, lengthOf(field));
            }
        }
    });
}

/// The cell of one category and file: what is lacking while that is little, else how much is there.
std::string cellOf(const Carried& carried, const char* pKey)
{
    if (!carried.isCarried) {
        return "";
    }
    if (!carried.isWritten) {
        return "read only ";
    }
    std::size_t number = 0;
    std::vector<std::string> lacking;
    std::vector<std::string> path(1);
    walk(QvDatabaseCatalogDocument_Memory, pKey,
         [&](const QvDatabaseCatalogField_t& field, const std::vector<std::size_t>& places) {
             path.resize(field.depth + 1);
             const std::string name = path.back() + field.pName;
             if (field.element == QvDatabaseCatalogElement_Record) {
                 path.push_back(name + ".");
                 return;
             }
             ++number;
             for (const std::size_t place : places) {
                 const auto begin = carried.bytes.begin() + static_cast<std::ptrdiff_t>(place + field.offset);
                 const auto end = begin + static_cast<std::ptrdiff_t>(lengthOf(field));
                 if (std::find(begin, end, false) != end) {
                     lacking.push_back("`" + name + "`");
                     return;
                 }
             }
         });
    if (lacking.empty()) {
        return "all ";
    }
    if (lacking.size() > 4) {
        return std::to_string(number - lacking.size()) + " of " + std::to_string(number) + " ";
    }
    std::string cell = "all but ";
    for (const std::string& name : lacking) {
        cell += (&name == &lacking.front() ? "" : ", ") + name;
    }
    return cell + " ";
}

} // namespace

int main()
{
    std::printf("| category ");
    for (const File& file : kFiles) {
        std::printf("| %s ", file.name);
    }
    std::printf("|\n|---|---|---|---|---|---|\n");
    const QvDatabaseCategory_t* pCategory = nullptr;
    for (std::size_t i = 0; (pCategory = QvDatabase_category(i)) != nullptr; ++i) {
        std::printf("| `%s` ", pCategory->pKey);
        for (const File& file : kFiles) {
            Carried carried{std::vector<bool>(pCategory->size)};
            for (const QvDatabaseCatalogDocument_t document : file.documents) {
                add(document, pCategory->pKey, carried);
            }
            std::printf("| %s", cellOf(carried, pCategory->pKey).c_str());
        }
        std::printf("|\n");
    }
    return 0;
}
