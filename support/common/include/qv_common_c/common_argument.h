/** @file
 * Comparison of member keys with the names that are known.
 */
#ifndef QV_COMMON_ARGUMENT_H
#define QV_COMMON_ARGUMENT_H

#include <stdbool.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** true when the member key `pKey` is the argument named `pName`: the two are equal as a whole, case included, so that
 * "paths[0].formatExt" isn't "paths[0].format". Null matches nothing, null included. */
QV_COMMON_API bool QvCommonArgument_match(const char* pKey, const char* pName);

#ifdef __cplusplus
}
#endif

#endif
