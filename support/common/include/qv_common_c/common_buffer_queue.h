/** @file
 * A queue of buffers.
 */
#ifndef QV_COMMON_BUFFER_QUEUE_H
#define QV_COMMON_BUFFER_QUEUE_H

#include <stddef.h>
#include <stdint.h>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A queue of buffers. */
typedef uintptr_t QvCommonBufferQueueHandle_t;

/** What a queue of buffers is opened with. */
typedef struct QvCommonBufferQueueOpenParam {
    /** Called for each buffer that is left at close, with the address of a variable that holds it. Null: the buffers
     * aren't the queue's and are left alone. */
    QvCommonDQueueDeleteDataHandler_t pDeleteBufferHandler;
} QvCommonBufferQueueOpenParam_t;

/** Makes an empty queue. `*pParam` is copied; null stands for no handler. `*pHandle` must hold 0 and receives the
 * queue. Status 0; 5 no memory; 13 bad arguments. */
QV_COMMON_API int QvCommonBufferQueue_open(QvCommonBufferQueueOpenParam_t* pParam,
                                           QvCommonBufferQueueHandle_t* pHandle);

/** Calls the delete handler, where there is one, on each buffer left from front to back, releases the queue and sets
 * `*pHandle` to 0.
 * Status 0; the first failure of the handler, everything is released all the same; 13 when `pHandle` is null or
 * holds 0. */
QV_COMMON_API int QvCommonBufferQueue_close(QvCommonBufferQueueHandle_t* pHandle);

/** The number of buffers; 0 for a null handle. */
QV_COMMON_API size_t QvCommonBufferQueue_length(QvCommonBufferQueueHandle_t handle);

/** Appends the buffer that `*ppBuffer` points at. On success a queue with a delete handler owns it. `*ppBuffer` is left
 * as it is. Status 0; 5 no memory; 13 bad arguments, `*ppBuffer` null among them. */
QV_COMMON_API int QvCommonBufferQueue_pushBack(QvCommonBufferQueueHandle_t handle, QvCommonBuffer_t** ppBuffer);

/** Moves the first buffer into `*ppBuffer`; it is the caller's from then on.
 * Status 0; 8 the queue is empty, `*ppBuffer` is unchanged; 13 bad arguments. */
QV_COMMON_API int QvCommonBufferQueue_popFront(QvCommonBufferQueueHandle_t handle, QvCommonBuffer_t** ppBuffer);

#ifdef __cplusplus
}
#endif

#endif
