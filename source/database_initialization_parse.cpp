#include <qv_common_c/common_string.h>
#include <qv_database_c/database_initialization.h>

#include "database_initialization.h"
#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

namespace {

/// Hands a section to its codec; a name that is none of the six has no effect. A section that fails costs a Warning.
void parseSection(QvDatabaseHandle_t handle, QvInitializationSection_t* pSection, const char* pFunction)
{
    for (const char* pKey : kSectionKeys) {
        if (!QvCommonString_equal(pSection->pHeader, pKey, true)) {
            continue;
        }
        const Category* pCategory = nullptr;
        void* pRecord = nullptr;
        int status = queryCategory(handle, pKey, &pCategory, &pRecord);
        if (status == kSuccess) {
            status = pCategory->initialization.parse(pSection, pRecord);
        }
        if (status != kSuccess) {
            traceWarning({__FILE__, __LINE__, pFunction}, status);
        }
    }
}

/// Takes each section out at the front and puts it back behind, so that the queue ends as it was and owns them all.
int parseSections(QvDatabaseHandle_t handle, QvCommonDQueueHandle_t hSections, const char* pFunction)
{
    const std::size_t number = QvCommonDQueue_length(hSections);
    for (std::size_t i = 0; i < number; ++i) {
        void* pElement = nullptr;
        QV_TRY_AS(pFunction, QvCommonDQueue_popFront(hSections, &pElement));
        parseSection(handle, static_cast<QvInitializationSection_t*>(pElement), pFunction);
        QV_TRY_AS(pFunction, QvCommonDQueue_pushBack(hSections, &pElement));
    }
    return kSuccess;
}

} // namespace

int QvDatabaseInitialization_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    QvCommonDQueueHandle_t hSections = 0;
    QV_TRY(openSections(&hSections));
    int status = QvInitializationReader_parse(contextOf(handle)->hInitializationReader, pBuffer, hSections);
    if (status != kSuccess) {
        static_cast<void>(QV_FAIL(status));
    } else {
        status = parseSections(handle, hSections, __func__);
    }
    // How the close went is not told: what was read is read.
    QvCommonDQueue_close(&hSections);
    return status;
}
