/** @file
 * Integers of any width by their place in an array, and floats as doubles.
 */
#ifndef QV_COMMON_CONVERT_H
#define QV_COMMON_CONVERT_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/types.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Stores `value` into element `index` of the array at `pData`, whose elements are `stride` bytes wide (1, 2, 4 or 8),
 * in the machine's byte order. Of a value that doesn't fit, the low bytes are stored. The array needs no alignment.
 * Stores nothing for any other stride, or when `pData` is null. */
QV_COMMON_API void QvCommonConvert_integer2Binary(void* pData, size_t stride, size_t index, ssize_t value);

/** Reads element `index` of the array at `pData`, whose elements are `stride` bytes wide (1, 2, 4 or 8), with sign
 * extension if `isSigned`, else with zero extension; an unsigned value of 8 bytes keeps its bits. Gives 0 for any other
 * stride, or when `pData` is null. */
QV_COMMON_API int64_t QvCommonConvert_integer2Binary_(bool isSigned, void* pData, size_t stride, size_t index);

/** Gives the double to be written for a float: the same value. */
QV_COMMON_API double QvCommonConvert_float2Double(float value);

#ifdef __cplusplus
}
#endif

#endif
