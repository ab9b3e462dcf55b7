/** @file
 * A logger, which takes messages for the user of a program.
 */
#ifndef QV_COMMON_LOGGER_H
#define QV_COMMON_LOGGER_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A logger takes messages for the user of a program, whatever the tracer is set to. */
typedef uintptr_t QvCommonLoggerHandle_t;

/** Gets one message, zero-terminated and `length` bytes long, valid during the call only. Returns a status, which
 * becomes that of QvCommonLogger_log. */
typedef int (*QvCommonLoggerWrite_t)(void* pUserData, const char* pText, size_t length);

/** What a logger is opened with. */
typedef struct QvCommonLoggerOpenParam {
    FILE* pStream; /**< where messages go; stays the caller's and open until close; null: standard error */
    QvCommonLoggerWrite_t pWrite; /**< null, or gets the messages, and pStream plays no part */
    void* pUserData;              /**< first argument of pWrite, may be null */
} QvCommonLoggerOpenParam_t;

/** Makes a logger. `*pParam` is copied. `*pHandle` must hold 0 and receives the logger.
 * Status 0; 5 no memory; 13 bad arguments. */
QV_COMMON_API int QvCommonLogger_open(QvCommonLoggerOpenParam_t* pParam, QvCommonLoggerHandle_t* pHandle);

/** Releases the logger and sets `*pHandle` to 0. Status 0; 13 when `pHandle` is null or holds 0. */
QV_COMMON_API int QvCommonLogger_close(QvCommonLoggerHandle_t* pHandle);

/** Logs one message. A stream gets it with a line end behind it and is flushed. Several threads may log at once; with
 * pWrite that is up to pWrite.
 * Status 0; 12 write error; what pWrite returned; 13 when `pText` is null or `handle` is 0. With handle 0 the message
 * has no log to go to and, so that it isn't lost, is traced to hTracer at level Warning. */
QV_COMMON_API int QvCommonLogger_log(QvCommonLoggerHandle_t handle, const char* pText);

#ifdef __cplusplus
}
#endif

#endif
