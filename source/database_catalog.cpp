#include "database_catalog.h"

#include <iterator>

#include <qv_database_c/qv_database.h>

#include "database_binary.h"
#include "database_forms.h"
#include "database_initialization.h"
#include "database_registry.h"
#include "database_status.h"
#include "database_tuning.h"
#include "protocol_simulator.h"

using namespace qv::database;

namespace {

constexpr const char* kDocuments[] = {
    "memory", "image", "tuning", "simulator", "calibration", "initialization", "meta", "version",
};
static_assert(std::size(kDocuments) == QvDatabaseCatalogDocument_Sum);

const Table* findForm(QvDatabaseCatalogDocument_t document, std::string_view key)
{
    for (const Form& form : forms()) {
        if (key == form.key && std::string_view{form.document} == kDocuments[document]) {
            return form.table;
        }
    }
    return nullptr;
}

/// The document's one category.
bool onlyEntry(std::size_t index, Entry& entry, const char* pKey, const char* pPlace)
{
    entry.key = pKey;
    entry.place = pPlace;
    return index == 0;
}

/// The classes of `root`, then the driver object: its own members around the classes of "driver". Frame metadata has a
/// small document to itself.
bool simulatorEntry(std::size_t index, Entry& entry)
{
    const auto takeClass = [&](const ClassTable& table, const char* pPlace) {
        entry = {table.rows[index].key, pPlace, table.rows[index].name, table.member};
        return true;
    };
    if (index < kAutoClasses.rows.size()) {
        return takeClass(kAutoClasses, "/root/*");
    }
    index -= kAutoClasses.rows.size();
    if (index == 0) {
        return onlyEntry(0, entry, kDriverKeys[0], "/root/*");
    }
    --index;
    if (index < kManualClasses.rows.size()) {
        return takeClass(kManualClasses, "/root/*/driver/*");
    }
    index -= kManualClasses.rows.size();
    if (index == 0) {
        return onlyEntry(0, entry, kDriverKeys[1], "/root/*");
    }
    return onlyEntry(index - 1, entry, "MT", "/root/metadata");
}

bool isFilled(const QvDatabaseCatalogCursor_t* pCursor)
{
    return pCursor != nullptr && pCursor->size >= sizeof *pCursor && pCursor->table[0] != 0;
}

std::size_t imageOffset(std::string_view key)
{
    std::size_t offset = 0;
    for (const char* pKey : kImageKeys) {
        if (key == pKey) {
            return offset;
        }
        offset += findCategory(pKey)->size;
    }
    return SIZE_MAX;
}

/// All of an entry but its table, which costs a search.
bool standAt(QvDatabaseCatalogDocument_t document, std::size_t index, Entry& entry)
{
    entry = {};
    bool isThere = false;
    switch (document) {
    case QvDatabaseCatalogDocument_Memory: {
        const QvDatabaseCategory_t* pCategory = QvDatabase_category(index);
        entry.key = pCategory == nullptr ? nullptr : pCategory->pKey;
        return pCategory != nullptr;
    }
    case QvDatabaseCatalogDocument_Image:
        isThere = index < std::size(kImageKeys);
        entry.key = isThere ? kImageKeys[index] : nullptr;
        return isThere;
    case QvDatabaseCatalogDocument_Tuning:
        isThere = index < std::size(kTuningRows);
        if (isThere) {
            entry.key = kTuningRows[index].key;
            entry.place = kTuningRows[index].place;
            entry.isWritten = kTuningRows[index].isWritten;
        }
        break;
    case QvDatabaseCatalogDocument_Simulator:
        isThere = simulatorEntry(index, entry);
        break;
    case QvDatabaseCatalogDocument_Calibration:
        isThere = onlyEntry(index, entry, "CLB", "");
        break;
    case QvDatabaseCatalogDocument_Initialization:
        isThere = index < std::size(kSectionKeys);
        if (isThere) {
            entry.key = entry.place = kSectionKeys[index];
        }
        break;
    case QvDatabaseCatalogDocument_Meta:
        isThere = onlyEntry(index, entry, "MT", "");
        break;
    case QvDatabaseCatalogDocument_Version:
        isThere = onlyEntry(index, entry, "MISC", "/version");
        break;
    case QvDatabaseCatalogDocument_Sum:
        break;
    }
    return isThere;
}

bool findStand(QvDatabaseCatalogDocument_t document, std::string_view name, Entry& entry)
{
    for (std::size_t i = 0; standAt(document, i, entry); ++i) {
        if (name == entry.key || (entry.className != nullptr && name == entry.className)) {
            return true;
        }
    }
    return false;
}

/// Memory and image have none.
bool withTable(QvDatabaseCatalogDocument_t document, Entry& entry)
{
    entry.table = isRaw(document) ? nullptr : findForm(document, entry.key);
    return true;
}

} // namespace

namespace qv::database {

bool entryAt(QvDatabaseCatalogDocument_t document, std::size_t index, Entry& entry)
{
    return standAt(document, index, entry) && withTable(document, entry);
}

bool findEntry(QvDatabaseCatalogDocument_t document, std::string_view name, Entry& entry)
{
    return findStand(document, name, entry) && withTable(document, entry);
}

} // namespace qv::database

const char* QvDatabaseCatalog_document(QvDatabaseCatalogDocument_t document)
{
    const auto index = static_cast<std::size_t>(document);
    return index < std::size(kDocuments) ? kDocuments[index] : nullptr;
}

int QvDatabaseCatalog_category(QvDatabaseCatalogDocument_t document, std::size_t index,
                               QvDatabaseCatalogCategory_t* pCategory)
{
    if (pCategory == nullptr) {
        return kBadArgument;
    }
    Entry entry;
    if (!standAt(document, index, entry)) {
        return QvCommonError_NoEntry;
    }
    const Category& category = *findCategory(entry.key);
    QvDatabaseCatalogCategory_t all{};
    all.pKey = category.key;
    all.pRecord = category.record;
    all.pMeaning = factText(findRecordType(category.record)->meaning);
    all.recordSize = category.size;
    for (int i = 0; i < QvDatabaseCatalogDocument_Sum; ++i) {
        Entry other;
        if (findStand(static_cast<QvDatabaseCatalogDocument_t>(i), category.key, other)) {
            all.documents |= 1U << static_cast<unsigned>(i);
        }
    }
    all.imageOffset = imageOffset(category.key);
    all.pPlace = entry.place;
    all.pClass = entry.className;
    all.pClassKey = entry.classKey;
    all.isWritten = entry.isWritten;
    return handOver(all, pCategory);
}

int QvDatabaseCatalog_walk(QvDatabaseCatalogDocument_t document, const char* pCategory,
                           QvDatabaseCatalogCursor_t* pCursor)
{
    if (pCategory == nullptr || pCursor == nullptr) {
        return kBadArgument;
    }
    Entry entry;
    if (!findEntry(document, pCategory, entry)) {
        return kMemberMissing;
    }
    QvDatabaseCatalogCursor_t all{};
    all.document = document;
    all.depth = 1;
    all.table[0] = Scope(entry).handle(document);
    return handOver(all, pCursor);
}

int QvDatabaseCatalog_next(QvDatabaseCatalogCursor_t* pCursor, QvDatabaseCatalogField_t* pField)
{
    if (pField == nullptr || !isFilled(pCursor)) {
        return kBadArgument;
    }
    while (pCursor->depth > 0) {
        const std::size_t level = pCursor->depth - 1;
        const Scope scope = Scope::ofHandle(pCursor->table[level], pCursor->document);
        const std::size_t index = pCursor->next[level];
        if (index == scope.size()) {
            --pCursor->depth;
            continue;
        }
        const int status = handOver(scope.field(index, level), pField);
        if (status != kSuccess) {
            return status;
        }
        ++pCursor->next[level];
        const Scope nested = scope.nested(index);
        if (nested && pCursor->depth < std::size(pCursor->table)) {
            pCursor->table[pCursor->depth] = nested.handle(pCursor->document);
            pCursor->next[pCursor->depth] = 0;
            ++pCursor->depth;
        }
        return kSuccess;
    }
    return QvCommonError_NoEntry;
}

int QvDatabaseCatalog_skip(QvDatabaseCatalogCursor_t* pCursor)
{
    if (!isFilled(pCursor)) {
        return kBadArgument;
    }
    // A record that has just been given is the one level that has not begun.
    if (pCursor->depth > 1 && pCursor->next[pCursor->depth - 1] == 0) {
        --pCursor->depth;
    }
    return kSuccess;
}

int QvDatabaseCatalog_value(const QvDatabaseCatalogField_t* pField, std::size_t index, QvDatabaseCatalogValue_t* pValue)
{
    if (pField == nullptr || pValue == nullptr || pField->size < sizeof *pField || pField->pKey == nullptr) {
        return kBadArgument;
    }
    if (index >= pField->valueNumber) {
        return QvCommonError_NoEntry;
    }
    const NamedValue& row = namedValuesOf(static_cast<EnumerationId>(pField->internal[kEnumeration]))[index];
    QvDatabaseCatalogValue_t all{};
    all.value = row.value;
    all.pName = factText(row.name);
    all.pShort = std::strrchr(all.pName, '_') + 1; // enumerators are named QvDatabase..._Value
    all.pMeaning = factText(row.meaning);
    return handOver(all, pValue);
}
