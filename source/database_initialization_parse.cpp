#include <qv_common_c/common_string.h>
#include <qv_database_c/database_initialization.h>

#include "database_initialization.h"
#include "database_registry.h"
#include "database_status.h"

using namespace qv::database;

namespace {

/// Hands a section to its codec; a name that is none of the six has no effect.
void parseSection(QvDatabaseHandle_t handle, QvInitializationSection_t* pSection)
{
    for (const SectionCodec& row : sections()) {
        if (!QvCommonString_equal(pSection->pHeader, row.key, true)) {
            continue;
        }
        void* pRecord = nullptr;
        int status = QvDatabase_query(handle, row.key, &pRecord);
        if (status == kSuccess) {
            status = row.parse(pSection, pRecord);
        }
        if (status != kSuccess) {
            warnSection(QV_HERE, status);
        }
    }
}

/// Takes each section out at the front and puts it back behind, so that the queue ends as it was and owns them all.
int parseSections(QvDatabaseHandle_t handle, QvCommonDQueueHandle_t hSections)
{
    const std::size_t number = QvCommonDQueue_length(hSections);
    for (std::size_t i = 0; i < number; ++i) {
        void* pElement = nullptr;
        int status = QvCommonDQueue_popFront(hSections, &pElement);
        if (status != kSuccess) {
            return status;
        }
        parseSection(handle, static_cast<QvInitializationSection_t*>(pElement));
        status = QvCommonDQueue_pushBack(hSections, &pElement);
        if (status != kSuccess) {
            return status;
        }
    }
    return kSuccess;
}

} // namespace

int QvDatabaseInitialization_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    QvCommonDQueueHandle_t hSections = 0;
    int status = openSections(&hSections);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvInitializationReader_parse(contextOf(handle)->hInitializationReader, pBuffer, hSections);
    if (status == kSuccess) {
        status = parseSections(handle, hSections);
    }
    // How the close went is not told: what was read is read.
    QvCommonDQueue_close(&hSections);
    return status == kSuccess ? status : QV_FAIL(status);
}
