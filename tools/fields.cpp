#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "catalog_tree.h"
#include "commands.h"
#include "field_places.h"
#include "field_words.h"
#include "leaves.h"
#include "output.h"
#include "path_tree.h"

namespace qv::tools {
namespace {

using Category = QvDatabaseCatalogCategory_t;
using Field = QvDatabaseCatalogField_t;

constexpr std::size_t kMostWidth = 48; ///< of a column that is aligned

std::string textOrNothing(const char* pText)
{
    return pText == nullptr ? "" : pText;
}

/// The first sentence of a meaning.
std::string sentenceOf(const char* pText)
{
    const std::string text = textOrNothing(pText);
    const std::size_t end = text.find(". ");
    return end == std::string::npos ? text : text.substr(0, end + 1);
}

std::string offsetText(std::size_t offset)
{
    char text[48];
    std::snprintf(text, sizeof text, "%zu (0x%zx)", offset, offset);
    return text;
}

/// The place of a document's category with its class, and in it that of a field.
std::string placeText(const FieldPlace& place)
{
    const Category& category = place.category;
    if (place.document == QvDatabaseCatalogDocument_Initialization) {
        return std::string("[") + category.pPlace + "] " + place.key;
    }
    const std::string text = std::string(category.pPlace) + '/' + place.key;
    return category.pClass == nullptr ? text : text + " with " + category.pClassKey + " \"" + category.pClass + '"';
}

/// What a document does otherwise with a field.
std::string oddText(const FieldPlace& place, const Field& member)
{
    std::vector<std::string> words = oddities(place.field, member);
    if (!place.category.isWritten) {
        words.emplace_back("only read");
    }
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

/// The C member of a field, and its name from the category's record on.
FieldPlace memberOf(const Target& field)
{
    const std::vector<FieldPlace> places = placesOf(field, QvDatabaseCatalogDocument_Memory);
    if (!places.empty()) {
        return places.front();
    }
    // Memory knows the pointer to an array alone.
    FieldPlace member{QvDatabaseCatalogDocument_Memory, field.pCategory->category,
                      textOrNothing(field.pNode->field.pName), field.pNode->field};
    for (const FieldNode& node : fieldsOf(QvDatabaseCatalogDocument_Memory, field.pCategory->category)) {
        if (node.field.offset == field.heapOffset && field.pNode->field.count != QvDatabaseCatalogCount_Heap) {
            member.key = std::string(node.field.pName) + "[*]." + member.key;
        }
    }
    return member;
}

std::size_t imagePlaceOf(const Target& field)
{
    const std::size_t place = field.pCategory->category.imageOffset;
    return place == SIZE_MAX || field.heapOffset != SIZE_MAX ? SIZE_MAX : place + field.offset;
}

std::size_t sizeOf(const Target& field)
{
    return field.elements() * field.pNode->field.width;
}

/// What people ask first: values and what they mean.
std::string factsText(const Field& field)
{
    std::string text = rangeText(field);
    const auto add = [&text](const std::string& word) { text += (text.empty() || word.empty() ? "" : " ") + word; };
    add(textOrNothing(field.pUnit));
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        add(std::to_string(value.value) + '=' + value.pShort);
    }
    return text;
}

// ------------------------------------------------------------------------------------------------------------- people

void printCategories(const PathTree& tree)
{
    for (const Category& key : tree.keys()) {
        const std::string name = tree.category(key.pKey).name;
        std::printf("%-12s %s\n", name.empty() ? key.pKey : name.c_str(), sentenceOf(key.pMeaning).c_str());
    }
}

void printCategory(const Category& category)
{
    std::printf("%s\n%s\n  C           %s, %zu bytes\n", category.pKey, category.pMeaning, category.pRecord,
                category.recordSize);
    for (int i = QvDatabaseCatalogDocument_Tuning; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        for (const Category& entry : categoriesOf(document)) {
            if (std::string_view(entry.pKey) != category.pKey) {
                continue;
            }
            const bool isSection = document == QvDatabaseCatalogDocument_Initialization;
            std::string place = isSection ? std::string("[") + entry.pPlace + ']' : entry.pPlace;
            place = place.empty() ? "the whole document" : place;
            if (entry.pClass != nullptr) {
                place += std::string(" with ") + entry.pClassKey + " \"" + entry.pClass + '"';
            }
            std::printf("  %-11s %s%s\n", documentName(document).c_str(), place.c_str(),
                        entry.isWritten ? "" : ", only read");
        }
    }
    if (category.imageOffset != SIZE_MAX) {
        std::printf("  %-11s at %s\n", "image", offsetText(category.imageOffset).c_str());
    }
    std::printf("\n");
}

/// One line a field, in columns.
void printRows(const std::vector<FieldRow>& rows)
{
    std::size_t widths[2] = {0, 0};
    for (const FieldRow& row : rows) {
        widths[0] = std::min(std::max(widths[0], row.path.size()), kMostWidth);
        widths[1] = std::min(std::max(widths[1], typeText(row.first.pNode->field).size()), kMostWidth);
    }
    for (const FieldRow& row : rows) {
        const Field& field = row.first.pNode->field;
        const std::string facts = factsText(field);
        std::printf("%-*s  %-*s  %s%s%s\n", static_cast<int>(widths[0]), row.path.c_str(), static_cast<int>(widths[1]),
                    typeText(field).c_str(), facts.empty() ? "" : ('[' + facts + "] ").c_str(),
                    sentenceOf(field.pMeaning).c_str(),
                    row.first.pNode->isOnlyInMemory ? " (not in this document)" : "");
    }
}

/// Everything about one field.
void printField(const FieldRow& row)
{
    const Field& field = row.first.pNode->field;
    const FieldPlace member = memberOf(row.first);
    const auto print = [](const char* pWhat, const std::string& text) {
        if (!text.empty()) {
            std::printf("  %-11s %s\n", pWhat, text.c_str());
        }
    };
    std::printf("%s\n", row.path.c_str());
    print("meaning", textOrNothing(field.pMeaning));
    print("type", typeText(field) + ", " + std::to_string(sizeOf(row.first)) + " bytes");
    print("range", rangeText(field));
    print("unit", textOrNothing(field.pUnit));
    print("role", roleText(field, textOrNothing(field.pOther)));
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        print("value", std::to_string(value.value) + " = " + value.pShort + ": " + value.pMeaning);
    }
    print("C", std::string(member.category.pRecord) + '.' + member.key);
    for (int i = QvDatabaseCatalogDocument_Tuning; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        std::vector<FieldPlace> places = placesOf(row.first, document);
        // Where each item has a key of its own, the last one's.
        for (const FieldPlace& place : placesOf(row.last, document)) {
            const bool isKnown = std::any_of(places.begin(), places.end(),
                                             [&](const FieldPlace& other) { return other.key == place.key; });
            if (!isKnown) {
                places.push_back(place);
            }
        }
        for (const FieldPlace& place : places) {
            const std::string odd = oddText(place, member.field);
            print(documentName(document).c_str(), placeText(place) + (odd.empty() ? "" : "  (" + odd + ')'));
        }
    }
    if (const std::size_t place = imagePlaceOf(row.first); place != SIZE_MAX) {
        const std::size_t last = imagePlaceOf(row.last);
        print("image", "at " + offsetText(place) + (last == place ? "" : ", last at " + offsetText(last)));
    }
}

// --------------------------------------------------------------------------------------------------------------- JSON

std::string jsonOrNull(const char* pText)
{
    return pText == nullptr ? "null" : jsonText(pText);
}

std::string boundText(double bound)
{
    return std::isinf(bound) ? "null" : numberText(bound);
}

std::string placeJson(const FieldPlace& place, const Field& member)
{
    const Category& category = place.category;
    const QvDatabaseCatalogDirection_t direction = place.field.direction;
    const bool isRead = direction != QvDatabaseCatalogDirection_WriteOnly;
    const bool isWritten =
        category.isWritten && !place.field.isTwin &&
        (direction == QvDatabaseCatalogDirection_Both || direction == QvDatabaseCatalogDirection_WriteOnly);
    return R"({"document": ")" + std::string(QvDatabaseCatalog_document(place.document)) + R"(", "place": )" +
           jsonText(category.pPlace) + R"(, "class": )" + jsonOrNull(category.pClass) + R"(, "key": )" +
           jsonText(place.key) + R"(, "isRead": )" + (isRead ? "true" : "false") + R"(, "isWritten": )" +
           (isWritten ? "true" : "false") + R"(, "note": )" + jsonText(oddText(place, member)) + '}';
}

std::string rowJson(const FieldRow& row)
{
    const Field& field = row.first.pNode->field;
    const FieldPlace member = memberOf(row.first);
    std::string extents;
    for (std::size_t i = 0; i < field.rank; ++i) {
        extents += (i == 0 ? "" : ", ") + std::to_string(field.extents[i]);
    }
    std::string values;
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        values += (values.empty() ? "" : ", ") + (R"({"value": )" + std::to_string(value.value)) + R"(, "name": )" +
                  jsonText(value.pName) + R"(, "short": )" + jsonText(value.pShort) + R"(, "meaning": )" +
                  jsonOrNull(value.pMeaning) + '}';
    }
    std::string places;
    for (int i = QvDatabaseCatalogDocument_Tuning; i < QvDatabaseCatalogDocument_Sum; ++i) {
        for (const FieldPlace& place : placesOf(row.first, static_cast<QvDatabaseCatalogDocument_t>(i))) {
            places += (places.empty() ? "" : ", ") + placeJson(place, member.field);
        }
    }
    const std::size_t image = imagePlaceOf(row.first);
    return R"({"path": )" + jsonText(row.path) + R"(, "category": )" + jsonText(row.first.pCategory->category.pKey) +
           R"(, "type": )" + jsonText(typeText(field)) + R"(, "isRecord": )" +
           (row.first.pNode->isRecord() ? "true" : "false") + R"(, "extents": [)" + extents + R"(], "size": )" +
           std::to_string(sizeOf(row.first)) + R"(, "minimum": )" + boundText(field.minimum) + R"(, "maximum": )" +
           boundText(field.maximum) + R"(, "unit": )" + jsonOrNull(field.pUnit) + R"(, "values": [)" + values +
           R"(], "role": )" + jsonText(roleText(field, textOrNothing(field.pOther))) + R"(, "meaning": )" +
           jsonOrNull(field.pMeaning) + R"(, "member": )" + jsonText(member.key) + R"(, "imageOffset": )" +
           (image == SIZE_MAX ? "null" : std::to_string(image)) + R"(, "places": [)" + places + "]}";
}

std::string categoryJson(const PathCategory& category)
{
    const Category& entry = category.category;
    std::string documents;
    for (int i = QvDatabaseCatalogDocument_Image; i < QvDatabaseCatalogDocument_Sum; ++i) {
        const auto document = static_cast<QvDatabaseCatalogDocument_t>(i);
        if (isCarriedBy(entry, document)) {
            documents += (documents.empty() ? "" : ", ") + jsonText(QvDatabaseCatalog_document(document));
        }
    }
    return R"({"category": )" + jsonText(entry.pKey) + R"(, "path": )" + jsonText(category.name) + R"(, "record": )" +
           jsonText(entry.pRecord) + R"(, "size": )" + std::to_string(entry.recordSize) + R"(, "imageOffset": )" +
           (entry.imageOffset == SIZE_MAX ? "null" : std::to_string(entry.imageOffset)) + R"(, "documents": [)" +
           documents + R"(], "meaning": )" + jsonText(entry.pMeaning) + '}';
}

void printList(const std::vector<std::string>& objects)
{
    const char* pSeparator = "[";
    for (const std::string& object : objects) {
        std::printf("%s\n  %s", pSeparator, object.c_str());
        pSeparator = ",";
    }
    std::printf("%s\n]\n", objects.empty() ? "[" : "");
}

// ------------------------------------------------------------------------------------------------------------- choice

/// The rows of what a target names: a field alone, a record with its members, or a category's.
void addChosen(const Target& target, std::vector<FieldRow>& chosen)
{
    const std::vector<FieldRow> rows = rowsOf(*target.pCategory);
    bool isWithin = target.pNode == nullptr;
    std::size_t depth = 0;
    for (const FieldRow& row : rows) {
        if (row.first.pNode == target.pNode) {
            isWithin = true;
            depth = row.path.size();
        } else if (depth != 0) {
            isWithin = row.path.size() > depth && (row.path[depth] == '.' || row.path[depth] == '[') && isWithin;
        }
        if (isWithin) {
            chosen.push_back(row);
        }
    }
}

} // namespace

ExitStatus fields(const Options& options)
{
    const PathTree tree(options.names == "simulator");
    if (options.words.empty()) {
        if (!options.asJson) {
            printCategories(tree);
            return kDone;
        }
        std::vector<std::string> objects;
        for (const Category& key : tree.keys()) {
            objects.push_back(categoryJson(tree.category(key.pKey)));
        }
        printList(objects);
        return kDone;
    }
    Path path;
    std::string error;
    std::vector<Target> targets;
    if (!readPath(options.words[0], path, error)) {
        complain(options.words[0] + ": " + error);
        return kRefused;
    }
    path.mayOmitIndices = true;
    if (!tree.find(path, nullptr, targets, error)) {
        complain(error);
        return kRefused;
    }
    std::vector<FieldRow> rows;
    for (const Target& target : targets) {
        addChosen(target, rows);
    }
    if (options.asJson) {
        std::vector<std::string> objects;
        objects.reserve(rows.size());
        for (const FieldRow& row : rows) {
            objects.push_back(rowJson(row));
        }
        printList(objects);
    } else if (rows.size() == 1) {
        printField(rows[0]);
    } else {
        if (targets.size() == 1 && targets[0].pNode == nullptr) {
            printCategory(targets[0].pCategory->category);
        }
        printRows(rows);
    }
    return kDone;
}

} // namespace qv::tools
