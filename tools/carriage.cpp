#include "carriage.h"

#include <algorithm>
#include <string_view>

#include <qv_json_c/json_walk.h>

#include "catalog_tree.h"

namespace qv::tools {
namespace {

using Document = QvDatabaseCatalogDocument_t;

constexpr Document kDocuments[] = {QvDatabaseCatalogDocument_Memory,      QvDatabaseCatalogDocument_Image,
                                   QvDatabaseCatalogDocument_Tuning,      QvDatabaseCatalogDocument_Simulator,
                                   QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Initialization,
                                   QvDatabaseCatalogDocument_Version};

/// Notes bytes of a record, as far as they lie in it.
void mark(std::vector<Documents>& bytes, std::size_t begin, std::size_t size, Documents bit)
{
    const std::size_t end = std::min(begin + size, bytes.size());
    Documents* pBytes = bytes.data();
    for (std::size_t i = begin; i < end; ++i) {
        pBytes[i] |= bit;
    }
}

/// Notes the bytes of fields that the directions carry. The record of the fields begins at `base`. The counter of a list
/// is no field of a document that has the list.
void markFields(std::vector<Documents>& bytes, const std::vector<FieldNode>& nodes, std::size_t base, Documents bit,
                bool isReading)
{
    const QvDatabaseCatalogDirection_t other =
        isReading ? QvDatabaseCatalogDirection_WriteOnly : QvDatabaseCatalogDirection_ReadOnly;
    for (const FieldNode& node : nodes) {
        const QvDatabaseCatalogField_t& field = node.field;
        if (field.direction == other ||
            (!isReading && field.direction == QvDatabaseCatalogDirection_ReadWhileWriting)) {
            continue;
        }
        if (field.pName == nullptr) {
            markFields(bytes, node.fields, base, bit, isReading);
            continue;
        }
        const std::size_t begin = base + field.offset;
        if (field.count == QvDatabaseCatalogCount_Heap) {
            mark(bytes, begin, sizeof(void*), bit);
        } else if (field.element != QvDatabaseCatalogElement_Record) {
            mark(bytes, begin, field.width * elementsOf(field), bit);
        } else {
            for (std::size_t i = 0; i < elementsOf(field); ++i) {
                markFields(bytes, node.fields, begin + i * field.width, bit, isReading);
            }
        }
    }
}

/// The first name of a place such as "/tuning/AE_3".
std::string_view topOf(std::string_view place)
{
    place.remove_prefix(std::min<std::size_t>(1, place.size()));
    return place.substr(0, place.find('/'));
}

/// The documents of a text that have a member of that name at the top.
Documents documentsWith(std::string_view key)
{
    Documents documents = 0;
    for (const Document document : {QvDatabaseCatalogDocument_Tuning, QvDatabaseCatalogDocument_Simulator,
                                    QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Version}) {
        for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
            bool isThere = topOf(category.pPlace) == key;
            if (*category.pPlace == '\0') { // the document itself is the record
                for (const FieldNode& node : fieldsOf(document, category)) {
                    isThere = isThere || node.field.pKey == key;
                }
            }
            documents |= isThere ? bitOf(document) : Documents{0};
        }
    }
    return documents;
}

int visitTop(void* pUserData, const QvJsonWalkEvent_t* pEvent)
{
    if (pEvent->kind == QvJsonWalkKind_Key && pEvent->depth == 1) {
        *static_cast<Documents*>(pUserData) |= documentsWith({pEvent->pText, pEvent->length});
    }
    return 0;
}

/// The documents that stand in a text.
Documents documentsIn(std::string_view text)
{
    Documents documents = 0;
    QvJsonReaderHandle_t handle = 0;
    if (QvJsonReader_open(&handle) == 0) {
        QvJsonReader_walk(handle, text.data(), text.data() + text.size(), &visitTop, &documents);
        QvJsonReader_close(&handle);
    }
    return documents;
}

} // namespace

Carriage::Carriage(const QvDatabaseCatalogCategory_t& category)
    : read_(category.recordSize), written_(category.recordSize)
{
    for (const Document document : kDocuments) {
        if (document != QvDatabaseCatalogDocument_Memory && !isCarriedBy(category, document)) {
            continue;
        }
        for (const QvDatabaseCatalogCategory_t& entry : categoriesOf(document)) {
            if (std::string_view(entry.pKey) == category.pKey) {
                const std::vector<FieldNode> fields = fieldsOf(document, entry);
                markFields(read_, fields, 0, bitOf(document), true);
                for (const FieldNode& node : fields) {
                    if (entry.pClassKey != nullptr && std::string_view(node.field.pKey) == entry.pClassKey) {
                        className_ = node.field.offset;
                    }
                }
                if (entry.isWritten) {
                    markFields(written_, fields, 0, bitOf(document), false);
                }
            }
        }
    }
}

bool Carriage::isSetting(const Target& field) const
{
    return (readFrom(field) & kSettings) != 0 && placeOf(field) != className_;
}

std::size_t Carriage::placeOf(const Target& field)
{
    return field.heapOffset != SIZE_MAX ? field.heapOffset : field.offset;
}

bool isInSets(const QvDatabaseCatalogCategory_t& category)
{
    return category.documents != bitOf(QvDatabaseCatalogDocument_Memory) &&
           !isCarriedBy(category, QvDatabaseCatalogDocument_Meta);
}

Carrier carrierOf(const Input& input)
{
    if (input.form == Form::Image) {
        return {"an image", bitOf(QvDatabaseCatalogDocument_Image)};
    }
    if (input.form == Form::Ini) {
        return {"an .ini file", bitOf(QvDatabaseCatalogDocument_Initialization)};
    }
    const Documents found = documentsIn(input.bytes.view());
    if (found == 0) {
        return {"a text", 0};
    }
    const bool isTuning = (found & bitOf(QvDatabaseCatalogDocument_Tuning)) != 0;
    const bool isSimulator = (found & bitOf(QvDatabaseCatalogDocument_Simulator)) != 0;
    // Calibration and version have a place in each text.
    const Documents both = bitOf(QvDatabaseCatalogDocument_Calibration) | bitOf(QvDatabaseCatalogDocument_Version);
    const char* pName = isSimulator ? "a simulator document" : "a calibration document";
    return {isTuning ? "a tuning document" : pName, static_cast<Documents>(found | both)};
}

} // namespace qv::tools
