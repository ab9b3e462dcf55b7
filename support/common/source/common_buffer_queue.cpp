#include <cstddef>

#include <qv_common_c/common_buffer_queue.h>

#include <qv_common_c/common_error.h>

// A buffer queue is a queue of pointers with a typed face.

int QvCommonBufferQueue_open(QvCommonBufferQueueOpenParam_t* pParam, QvCommonBufferQueueHandle_t* pHandle)
{
    QvCommonDQueueOpenParam_t param = {};
    param.pDeleteDataHandler = pParam != nullptr ? pParam->pDeleteBufferHandler : nullptr;
    return QvCommonDQueue_open(&param, pHandle);
}

int QvCommonBufferQueue_close(QvCommonBufferQueueHandle_t* pHandle)
{
    return QvCommonDQueue_close(pHandle);
}

std::size_t QvCommonBufferQueue_length(QvCommonBufferQueueHandle_t handle)
{
    return QvCommonDQueue_length(handle);
}

int QvCommonBufferQueue_pushBack(QvCommonBufferQueueHandle_t handle, QvCommonBuffer_t** ppBuffer)
{
    if (ppBuffer == nullptr || *ppBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    void* pElement = *ppBuffer;
    return QvCommonDQueue_pushBack(handle, &pElement);
}

int QvCommonBufferQueue_popFront(QvCommonBufferQueueHandle_t handle, QvCommonBuffer_t** ppBuffer)
{
    if (ppBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    void* pElement = nullptr;
    const int status = QvCommonDQueue_popFront(handle, &pElement);
    if (status == QvCommonError_Success) {
        *ppBuffer = static_cast<QvCommonBuffer_t*>(pElement);
    }
    return status;
}
