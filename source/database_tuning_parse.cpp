#include <qv_database_c/database_tuning.h>

#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"
#include "database_tuning.h"

using namespace qv::database;

int QvDatabaseTuning_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    for (const TuningRow& row : tuningRows()) {
        QvJsonValue_t* pMember = QvJsonValue_member(pValue, row.codec.key);
        if (QvJsonValue_isEmpty(pMember)) {
            continue;
        }
        void* pRecord = nullptr;
        int status = QvDatabase_query(handle, row.codec.key, &pRecord);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
        status = row.codec.parse(pMember, pRecord);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    return kSuccess;
}
