#include <cstring>

#include <qv_database_c/database_binary.h>

#include "database_binary.h"
#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

int QvDatabaseBinary_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer, size_t* pTotalSize)
{
    if (handle == 0) {
        return kBadArgument;
    }
    for (const char* pKey : imageKeys()) {
        const Category& row = *findCategory(pKey);
        if (pTotalSize != nullptr) {
            *pTotalSize += row.size;
            continue;
        }
        void* pRecord = nullptr;
        int status = QvDatabase_query(handle, pKey, &pRecord);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
        status = enterRecord(pBuffer, row, ">>>");
        if (status != kSuccess) {
            return status;
        }
        std::memcpy(pBuffer->pBegin + pBuffer->offset, pRecord, row.size);
        pBuffer->offset += row.size;
    }
    return kSuccess;
}
