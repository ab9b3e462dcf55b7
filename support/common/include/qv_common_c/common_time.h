/** @file
 * The time stamp of documents.
 */
#ifndef QV_COMMON_TIME_H
#define QV_COMMON_TIME_H

#include <stddef.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Writes the current time, UTC, as "2024-05-31T23:59:59" into `pText`, within `size` bytes, the terminator included:
 * 20 hold it all, with fewer it is cut. Returns `pText`; writes nothing when it is null or `size` is 0. May be called
 * from any thread. */
QV_COMMON_API char* QvCommonTime_timestamp(char* pText, size_t size);

#ifdef __cplusplus
}
#endif

#endif
