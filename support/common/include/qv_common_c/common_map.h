/** @file
 * A map from texts to slots.
 */
#ifndef QV_COMMON_MAP_H
#define QV_COMMON_MAP_H

#include <stdint.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A map from zero-terminated strings to slots. */
typedef uintptr_t QvCommonMapHandle_t;

/** What a key leads to. The caller makes a slot with malloc or calloc and fills in the one member that it uses. */
typedef union QvCommonMapSlot {
    void* pObject;                          /**< an object */
    int (*pFunction)(void*);                /**< a function of one argument */
    int (*pFunction2)(void*, void*);        /**< a function of two arguments */
    int (*pFunction3)(void*, void*, void*); /**< a function of three arguments */
} QvCommonMapSlot_t;

/** What a map is opened with. */
typedef struct QvCommonMapOpenParam {
    /** Releases an entry's object; gets the address of the slot's pObject and returns a status. The slot itself is
     * released by the map. Null: the objects aren't the map's and are left alone. */
    int (*pFree)(void** ppObject);
} QvCommonMapOpenParam_t;

/** Makes an empty map. `*pParam` is copied. `*pHandle` must hold 0 and receives the map.
 * Status 0; 5 no memory; 13 bad arguments. */
QV_COMMON_API int QvCommonMap_open(QvCommonMapOpenParam_t* pParam, QvCommonMapHandle_t* pHandle);

/** Puts `*ppSlot` under a copy of `pKey`. On success the map owns the slot; `*ppSlot` is left as it is and may be read
 * while the map holds the entry. On failure the slot stays the caller's.
 * A key that exists gets the new slot: the object of the earlier one is released with pFree, unless it is the same
 * object, and then the earlier slot; a failure of pFree doesn't show.
 * Status 0; 5 no memory; 13 bad arguments, `*ppSlot` null among them. */
QV_COMMON_API int QvCommonMap_add(QvCommonMapHandle_t handle, const char* pKey, QvCommonMapSlot_t** ppSlot);

/** Looks up a key, compared exactly. `*ppSlot` receives the slot, which stays the map's and is valid until the key is
 * added anew or the map closed. When there is no such key it receives a slot that holds null, may be read, is the same
 * for all maps and must not be written.
 * Status 0; 8 no such key; 13 bad arguments, `*ppSlot` is unchanged. */
QV_COMMON_API int QvCommonMap_get(QvCommonMapHandle_t handle, const char* pKey, QvCommonMapSlot_t** ppSlot);

/** Releases every entry with pFree, the slots and the map, in no special order, and sets `*pHandle` to 0.
 * Status 0; the first failure of pFree, everything is released all the same; 13 when `pHandle` is null or holds 0. */
QV_COMMON_API int QvCommonMap_close(QvCommonMapHandle_t* pHandle);

#ifdef __cplusplus
}
#endif

#endif
