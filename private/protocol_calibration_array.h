#pragma once

#include <cstddef>

#include <qv_common_c/common_dqueue.h>
#include <qv_database_c/protocol_calibration.h>

#include "database_status.h"
#include "database_trace.h"

namespace qv::database {

/// Calls store(index, item) for up to `length` items of the list under a key of plain calibration text; items are
/// places in the text, each ending where a number parser stops. A shorter list is no failure. 0, or a status that has
/// been traced.
template <class Store>
int readArray(QvCommonBuffer_t* pBuffer, const char* pKey, std::size_t length, const Place& place, const Store& store)
{
    QvCommonDQueueHandle_t hQueue = 0;
    int status = QvCommonDQueue_open(nullptr, &hQueue);
    if (status != kSuccess) {
        return traceFailure(place, status);
    }
    status = QvDatabaseCalibrationTxt_extractArray(pBuffer, pKey, hQueue);
    if (status != kSuccess) {
        return traceFailure(place, status); // the queue stays open on this path
    }
    for (std::size_t i = 0; i < length; ++i) {
        void* pItem = nullptr;
        if (QvCommonDQueue_popFront(hQueue, &pItem) != kSuccess) {
            break;
        }
        store(i, static_cast<const char*>(pItem));
    }
    status = QvCommonDQueue_close(&hQueue);
    return status == kSuccess ? status : traceFailure(place, status);
}

} // namespace qv::database
