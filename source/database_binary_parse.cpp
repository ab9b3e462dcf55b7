#include <cstring>

#include <qv_database_c/database_binary.h>

#include "database_binary.h"
#include "database_trace.h"

using namespace qv::database;

int QvDatabaseBinary_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    if (handle == 0) {
        return kBadArgument;
    }
    for (const Category* pRow : imageCategories()) {
        void* pRecord = nullptr;
        QV_TRY(QvDatabase_query(handle, pRow->key, &pRecord));
        const int status = enterRecord(pBuffer, *pRow, "<<<");
        if (status != kSuccess) {
            return status;
        }
        std::memcpy(pRecord, pBuffer->pBegin + pBuffer->offset, pRow->size);
        pBuffer->offset += pRow->size;
    }
    return kSuccess;
}
