#include <cstring>

#include <qv_database_c/database_initialization.h>
#include <qv_initialization/initialization_text.h>

#include "database_initialization.h"
#include "database_registry.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"
#include "protocol_initialization.h"

// Not in the contract of the initialization library: with a build of it that lacks these, a text is made of sections.
extern "C" {
[[gnu::weak]] decltype(QvInitializationText_open) QvInitializationText_open;
[[gnu::weak]] decltype(QvInitializationText_close) QvInitializationText_close;
[[gnu::weak]] decltype(QvInitializationText_addHeader) QvInitializationText_addHeader;
[[gnu::weak]] decltype(QvInitializationText_finish) QvInitializationText_finish;
}

using namespace qv::database;

namespace {

struct CloseText {
    QvInitializationTextHandle_t hText = 0;

    ~CloseText() { QvInitializationText_close(&hText); }
};

/// The same text line by line: sections and members, each with its own blocks as their contract has it, would be made
/// to be read once.
int serializeLines(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer, const char* pFunction)
{
    CloseText text;
    QV_TRY_AS(pFunction, QvInitializationText_open(&text.hText));
    for (const Category* pCategory : sectionCategories()) {
        QV_TRY_AS(pFunction, QvInitializationText_addHeader(text.hText, pCategory->key));
        void* pRecord = nullptr;
        int status = QvDatabase_query(handle, pCategory->key, &pRecord);
        if (status == kSuccess) {
            status = writeLines(*pCategory->initialization.pTable, pRecord, text.hText);
        }
        if (status != kSuccess) {
            traceWarning({__FILE__, __LINE__, pFunction}, status); // as below
        }
    }
    QV_TRY_AS(pFunction, QvInitializationText_finish(text.hText, pBuffer));
    return kSuccess;
}

} // namespace

int QvDatabaseInitialization_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    if (QvInitializationText_open != nullptr && pBuffer != nullptr) {
        return serializeLines(handle, pBuffer, __func__);
    }
    QvCommonDQueueHandle_t hSections = 0;
    QV_TRY(openSections(&hSections));
    for (const char* pKey : kSectionKeys) {
        // The queue stays open where a section can't be made or pushed.
        QvInitializationSection_t* pSection = nullptr;
        QV_TRY(QvInitializationSection_create(&pSection));
        pSection->pHeader = strdup(pKey);
        if (pSection->pHeader == nullptr) {
            noteShortage(); // the section goes on without a name
        }
        const Category* pCategory = nullptr;
        void* pRecord = nullptr;
        int status = queryCategory(handle, pKey, &pCategory, &pRecord);
        if (status == kSuccess) {
            status = pCategory->initialization.serialize(pRecord, pSection);
        }
        if (status != kSuccess) {
            traceWarning(QV_HERE, status); // the section goes into the file with the members that it got
        }
        void* pElement = pSection;
        status = QvCommonDQueue_pushBack(hSections, &pElement);
        if (status != kSuccess) {
            QvInitializationSection_delete(&pSection);
            return QV_FAIL(status);
        }
    }
    const int status = QvInitializationWriter_serialize(contextOf(handle)->hInitializationWriter, hSections, pBuffer);
    if (status != kSuccess) {
        QvCommonDQueue_close(&hSections);
        return QV_FAIL(status);
    }
    QV_TRY(QvCommonDQueue_close(&hSections));
    return kSuccess;
}
