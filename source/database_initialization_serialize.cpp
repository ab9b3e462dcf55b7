#include <cstring>

#include <qv_database_c/database_initialization.h>

#include "database_initialization.h"
#include "database_registry.h"
#include "database_status.h"

using namespace qv::database;

namespace {

/// A section that fails goes into the file with the members that it got.
int pushSection(QvDatabaseHandle_t handle, const SectionCodec& row, QvCommonDQueueHandle_t hSections)
{
    QvInitializationSection_t* pSection = nullptr;
    int status = QvInitializationSection_create(&pSection);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    pSection->pHeader = strdup(row.key);
    void* pRecord = nullptr;
    status = QvDatabase_query(handle, row.key, &pRecord);
    if (status == kSuccess) {
        status = row.serialize(pRecord, pSection);
    }
    if (status != kSuccess) {
        warnSection(QV_HERE, status);
    }
    void* pElement = pSection;
    status = QvCommonDQueue_pushBack(hSections, &pElement);
    if (status != kSuccess) {
        QvInitializationSection_delete(&pSection);
        return QV_FAIL(status);
    }
    return kSuccess;
}

} // namespace

int QvDatabaseInitialization_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    QvCommonDQueueHandle_t hSections = 0;
    int status = openSections(&hSections);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    for (const SectionCodec& row : sections()) {
        status = pushSection(handle, row, hSections);
        if (status != kSuccess) {
            return status; // the queue stays open on this path
        }
    }
    status = QvInitializationWriter_serialize(contextOf(handle)->hInitializationWriter, hSections, pBuffer);
    if (status != kSuccess) {
        QvCommonDQueue_close(&hSections);
        return QV_FAIL(status);
    }
    status = QvCommonDQueue_close(&hSections);
    return status == kSuccess ? status : QV_FAIL(status);
}
