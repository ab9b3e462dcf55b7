/** @file
 * The status numbers of all libraries, and their texts.
 */
#ifndef QV_COMMON_ERROR_H
#define QV_COMMON_ERROR_H

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The status numbers of all libraries of the family. Operations return them as int. */
typedef enum QvCommonError {
    QvCommonError_Success = 0,       /**< all went well */
    QvCommonError_Failure = 1,       /**< a failure of no other kind */
    QvCommonError_NoContent = 2,     /**< a document has no content of the kind asked for */
    QvCommonError_NotFound = 3,      /**< file or folder not found */
    QvCommonError_AccessDenied = 4,  /**< file or folder may not be read or written */
    QvCommonError_OutOfMemory = 5,   /**< no memory */
    QvCommonError_Capacity = 6,      /**< too short, or over capacity */
    QvCommonError_Syntax = 7,        /**< a text breaks the rules of its form */
    QvCommonError_NoEntry = 8,       /**< no such entry: a key the map doesn't hold, or an empty queue */
    QvCommonError_IsFolder = 9,      /**< a file was asked for and the name is a folder's */
    QvCommonError_NoMember = 10,     /**< a member of a document is missing or empty */
    QvCommonError_Read = 11,         /**< reading failed */
    QvCommonError_Write = 12,        /**< writing failed */
    QvCommonError_BadArgument = 13,  /**< a handle or pointer is null, or an output variable isn't clear */
    QvCommonError_NotSupported = 14, /**< not supported */
    QvCommonError_NoKey = 15,        /**< a key, or its bracket, was not found in a text */
    QvCommonError_Sum = 16           /**< the count of status numbers */
} QvCommonError_t;

/** Gives a short text for `status`, "unknown status" for a number that isn't one. The text is constant, never null, and
 * stays valid for good. May be called from any thread. */
QV_COMMON_API const char* QvCommonError_text(int status);

#ifdef __cplusplus
}
#endif

#endif
