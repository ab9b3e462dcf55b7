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
        QV_TRY(QvCommonBufferQueue_close(&pConfig->hBufferQueueFile));
    }
    if (pConfig->pJSensorQuery != nullptr) {
        QV_TRY(QvJsonValue_delete(&pConfig->pJSensorQuery));
    }
    return kSuccess;
}
