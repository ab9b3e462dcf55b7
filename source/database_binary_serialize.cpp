#include <cstring>

#include <qv_database_c/database_binary.h>

#include "database_binary.h"
#include "database_trace.h"

using namespace qv::database;

int QvDatabaseBinary_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer, std::size_t* pTotalSize)
{
    if (handle == 0) {
        return kBadArgument;
    }
    for (const Category* pRow : imageCategories()) {
        if (pTotalSize != nullptr) {
            *pTotalSize += pRow->size;
            continue;
        }
        void* pRecord = nullptr;
        QV_TRY(QvDatabase_query(handle, pRow->key, &pRecord));
        const int status = enterRecord(pBuffer, *pRow, ">>>");
        if (status != kSuccess) {
            return status;
        }
        std::memcpy(pBuffer->pBegin + pBuffer->offset, pRecord, pRow->size);
        pBuffer->offset += pRow->size;
    }
    return kSuccess;
}
