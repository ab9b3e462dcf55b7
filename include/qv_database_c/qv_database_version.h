/** @file
 * The version of the interface. The first number stands in the name of the shared libraries and changes with what
 * breaks programs that were built before; the second with what is added; the third with what is mended.
 *
 * What documents hold is another version: `versionNumber` of category `MISC`.
 */
#ifndef QV_DATABASE_C_QV_DATABASE_VERSION_H
#define QV_DATABASE_C_QV_DATABASE_VERSION_H

#include <qv_database_c/qv_database_export.h>

/** First number of the version. */
#define QV_DATABASE_VERSION_MAJOR 0
/** Second number of the version. */
#define QV_DATABASE_VERSION_MINOR 1
/** Third number of the version. */
#define QV_DATABASE_VERSION_PATCH 0
/** The version as one number that grows: 10000 for the first, 100 for the second, 1 for the third. */
#define QV_DATABASE_VERSION_NUMBER                                                                                     \
    (QV_DATABASE_VERSION_MAJOR * 10000 + QV_DATABASE_VERSION_MINOR * 100 + QV_DATABASE_VERSION_PATCH)

#ifdef __cplusplus
extern "C" {
#endif

/** The version of the library that runs, such as "0.1.0", while the macros tell what a program was compiled with. The
    text is constant and stays valid as long as the library is loaded. May be called from any thread, needs no database.
 */
QV_DATABASE_API const char* QvDatabase_version(void);

#ifdef __cplusplus
}
#endif

#endif
