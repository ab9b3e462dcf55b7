#include <qv_database_c/database_tuning.h>

#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"
#include "database_tuning.h"

using namespace qv::database;

int QvDatabaseTuning_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pTuning = QvJsonValue_member(pValue, "tuning");
    for (const TuningRow& row : tuningRows()) {
        if (!row.isWritten) {
            continue;
        }
        void* pRecord = nullptr;
        int status = QvDatabase_query(handle, row.codec.key, &pRecord);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
        status = row.codec.serialize(pRecord, QvJsonValue_member(pTuning, row.codec.key));
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    return kSuccess;
}
