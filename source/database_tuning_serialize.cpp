#include <qv_database_c/database_tuning.h>

#include "database_registry.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"
#include "database_tuning.h"

using namespace qv::database;

int QvDatabaseTuning_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pTuning = writableMember(pValue, "tuning");
    for (const TuningRow& row : kTuningRows) {
        if (!row.isWritten) {
            continue;
        }
        const Category* pCategory = nullptr;
        void* pRecord = nullptr;
        QV_TRY(queryCategory(handle, row.key, &pCategory, &pRecord));
        QV_TRY(pCategory->tuning.serialize(pRecord, writableMember(pTuning, row.key)));
    }
    return kSuccess;
}
