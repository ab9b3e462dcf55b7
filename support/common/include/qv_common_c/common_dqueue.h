/** @file
 * A double-ended queue of pointers.
 */
#ifndef QV_COMMON_DQUEUE_H
#define QV_COMMON_DQUEUE_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A double-ended queue of pointers. */
typedef uintptr_t QvCommonDQueueHandle_t;

/** Releases an element; gets the address of a variable that holds it and returns a status. */
typedef int (*QvCommonDQueueDeleteDataHandler_t)(void** ppElement);

/** What a queue is opened with. */
typedef struct QvCommonDQueueOpenParam {
    /** Called for each element that is left at close. Null: the elements aren't the queue's and are left alone. */
    QvCommonDQueueDeleteDataHandler_t pDeleteDataHandler;
    /** true: several threads may push, pop and ask for the length at once. Open and close are always one thread's. */
    bool isThreadSafe;
} QvCommonDQueueOpenParam_t;

/** Makes an empty queue. `*pParam` is copied; null stands for no handler and one thread. `*pHandle` must hold 0 and
 * receives the queue. Status 0; 5 no memory; 13 bad arguments. */
QV_COMMON_API int QvCommonDQueue_open(QvCommonDQueueOpenParam_t* pParam, QvCommonDQueueHandle_t* pHandle);

/** Calls the delete handler, where there is one, on each element left from front to back, releases the queue and sets
 * `*pHandle` to 0.
 * Status 0; the first failure of the handler, everything is released all the same; 13 when `pHandle` is null or
 * holds 0. */
QV_COMMON_API int QvCommonDQueue_close(QvCommonDQueueHandle_t* pHandle);

/** The number of elements; 0 for a null handle. */
QV_COMMON_API size_t QvCommonDQueue_length(QvCommonDQueueHandle_t handle);

/** Appends the pointer that `*ppElement` holds, which may be null. On success a queue with a delete handler owns the
 * element. `*ppElement` is left as it is. A queue keeps the places of popped elements, so that as many can be pushed
 * without memory. Status 0; 5 no memory; 13 bad arguments. */
QV_COMMON_API int QvCommonDQueue_pushBack(QvCommonDQueueHandle_t handle, void** ppElement);

/** Moves the first element into `*ppElement`; it is the caller's from then on.
 * Status 0; 8 the queue is empty, `*ppElement` is unchanged; 13 bad arguments. */
QV_COMMON_API int QvCommonDQueue_popFront(QvCommonDQueueHandle_t handle, void** ppElement);

#ifdef __cplusplus
}
#endif

#endif
