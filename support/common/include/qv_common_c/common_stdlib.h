/** @file
 * Numbers in texts, read by the rules of the C locale whatever locale the process has chosen. May be called from any
 * thread.
 */
#ifndef QV_COMMON_STDLIB_H
#define QV_COMMON_STDLIB_H

#include <stdint.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** As strtol. `ppEnd` may be null, else `*ppEnd` receives the first character that isn't part of the number. A value
 * out of range gives LONG_MAX or LONG_MIN. A null text gives 0 and a null end. */
QV_COMMON_API long QvCommonStdlib_strtol(const char* pText, char** ppEnd, int32_t base);

/** As strtof. `ppEnd` may be null, else `*ppEnd` receives the first character that isn't part of the number. A value
 * out of range gives an infinity. A null text gives 0 and a null end. */
QV_COMMON_API float QvCommonStdlib_strtof(const char* pText, char** ppEnd);

#ifdef __cplusplus
}
#endif

#endif
