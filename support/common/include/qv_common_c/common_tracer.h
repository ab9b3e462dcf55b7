/** @file
 * The tracer, which says what the libraries do and where something failed.
 */
#ifndef QV_COMMON_TRACER_H
#define QV_COMMON_TRACER_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Traces are written in two steps: QvCommonTracer_prefixSet names level and source position, then the text goes with
 * fprintf to the stream of QvCommonTracer_file:
 *
 *     QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, __LINE__, __func__);
 *     fprintf(QvCommonTracer_file(hTracer), "%s(%d)\n", QvCommonError_text(status), status);
 *
 * writes "error: source/x.cpp:12: Function: bad arguments(13)". Without a position the prefix is "error: ". The words
 * for the levels are debug, info, warning and error. Tracing may change errno.
 *
 * Several threads may trace to one tracer: what each writes is put together until its line ends, and the line goes out
 * at once, in a single write. A thread that holds a lock on the stream the lines go to (flockfile) must not trace
 * meanwhile.
 */
typedef uintptr_t QvCommonTracerHandle_t;

/** How much a line matters; a tracer writes those of its level and above. */
typedef enum QvCommonTracerLevel {
    QvCommonTracerLevel_Debug = 0,   /**< each member that a document lacks, and what else is of use when searching */
    QvCommonTracerLevel_Info = 1,    /**< the banner at open, the summary of QvDatabase_info */
    QvCommonTracerLevel_Warning = 2, /**< something is odd, and the work goes on */
    QvCommonTracerLevel_Error = 3,   /**< an operation fails */
    QvCommonTracerLevel_Sum = 4      /**< the count of levels */
} QvCommonTracerLevel_t;

/** Gets one whole line, prefix included and line end left off, zero-terminated and `length` bytes long. `level` is that
 * of the text which ended the line. `pText` is valid during the call only. The result is ignored. Lines come one at a
 * time, from whichever thread traces. Must not trace to the same tracer. */
typedef int (*QvCommonTracerWrite_t)(void* pUserData, QvCommonTracerLevel_t level, const char* pText, size_t length);

/** What a tracer is opened with. */
typedef struct QvCommonTracerOpenParam {
    QvCommonTracerLevel_t level;  /**< the lowest level that is written; QvCommonTracerLevel_Sum: nothing is */
    FILE* pStream;                /**< where lines go; stays the caller's and open until close; null: standard error */
    QvCommonTracerWrite_t pWrite; /**< null, or gets the lines, and pStream plays no part */
    void* pUserData;              /**< first argument of pWrite, may be null */
} QvCommonTracerOpenParam_t;

/** The tracer of all libraries of the family, and of programs that like to use it. It is 0 until a program opens it
 * with QvCommonTracer_open(&param, &hTracer), before other threads trace. */
extern QV_COMMON_API QvCommonTracerHandle_t hTracer;

/** Makes a tracer. `*pParam` is copied. `*pHandle` must hold 0 and receives the tracer.
 * Status 0; 5 no memory; 13 bad arguments, a level that isn't one among them. */
QV_COMMON_API int QvCommonTracer_open(QvCommonTracerOpenParam_t* pParam, QvCommonTracerHandle_t* pHandle);

/** Hands on lines that were not ended, flushes what was written, releases the tracer and sets `*pHandle` to 0. Nobody
 * may be tracing to it. Status 0; 13 when `pHandle` is null or holds 0. */
QV_COMMON_API int QvCommonTracer_close(QvCommonTracerHandle_t* pHandle);

/** Chooses level and source position of the line that this thread writes next. Handle 0 is the built-in tracer, which
 * writes Info and above to standard error. A number that is no level counts as Error. `pFile` null: the line has no
 * position. `line` counts from 1, below that no line number is shown. `pFunction` may be null. The texts must stay
 * valid until QvCommonTracer_file is called. */
QV_COMMON_API void QvCommonTracer_prefixSet(QvCommonTracerHandle_t handle, QvCommonTracerLevel_t level,
                                            const char* pFile, int line, const char* pFunction);

/** Gives the stream that the line's text is to be written to, after writing the prefix there, once for each call of
 * QvCommonTracer_prefixSet. Never null. It isn't the stream that the lines go to, so flushing it flushes nothing. Where
 * the level is off it is a stream that drops all it gets without even formatting it. Called without
 * QvCommonTracer_prefixSet it writes no prefix, and the level is the last one that this thread chose for the same
 * handle, or else Info. The stream stays the tracer's and is valid until close. */
QV_COMMON_API FILE* QvCommonTracer_file(QvCommonTracerHandle_t handle);

#ifdef __cplusplus
}
#endif

#endif
