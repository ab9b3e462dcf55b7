#include <cstring>

#include <qv_database_c/database_initialization.h>

#include "database_initialization.h"
#include "database_registry.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

int QvDatabaseInitialization_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
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
