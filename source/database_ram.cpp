#include <qv_database_c/database_ram.h>

#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

int QvDatabaseRam_reset(QvDatabaseRam_t* pConfig)
{
    if (pConfig == nullptr) {
        return kBadArgument;
    }
    if (pConfig->hBufferQueueFile != 0) {
        const int status = QvCommonBufferQueue_close(&pConfig->hBufferQueueFile);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    if (pConfig->pJSensorQuery != nullptr) {
        const int status = QvJsonValue_delete(&pConfig->pJSensorQuery);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    return kSuccess;
}
