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
    for (const TuningRow& row : kTuningRows) {
        QvJsonValue_t* pMember = QvJsonValue_member(pValue, row.key);
        if (QvJsonValue_isEmpty(pMember)) {
            continue;
        }
        const Category* pCategory = nullptr;
        void* pRecord = nullptr;
        QV_TRY(queryCategory(handle, row.key, &pCategory, &pRecord));
        QV_TRY(pCategory->tuning.parse(pMember, pRecord));
    }
    return kSuccess;
}
