/** @file
 * Comparison of texts.
 */
#ifndef QV_COMMON_STRING_H
#define QV_COMMON_STRING_H

#include <stdbool.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** true when the two texts are equal as a whole. `isCaseSensitive` false: the letters A to Z equal a to z, in any
 * locale. Null equals null alone. */
QV_COMMON_API bool QvCommonString_equal(const char* pText, const char* pText2, bool isCaseSensitive);

#ifdef __cplusplus
}
#endif

#endif
