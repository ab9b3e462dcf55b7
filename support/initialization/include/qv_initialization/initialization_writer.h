/** @file
 * The writer of initialization files.
 */
#ifndef QV_INITIALIZATION_WRITER_H
#define QV_INITIALIZATION_WRITER_H

#include <stdint.h>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_initialization/qv_initialization_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A writer; 0 is none. It keeps nothing between calls, so several threads may write with one writer. */
typedef uintptr_t QvInitializationWriterHandle_t;

/**
 * Opens a writer.
 * @param phWriter receives the handle; must hold 0.
 * @return 0; 5 when out of memory; 13 when phWriter is null or doesn't hold 0.
 */
QV_INITIALIZATION_API int QvInitializationWriter_open(QvInitializationWriterHandle_t* phWriter);

/**
 * Closes the writer and sets the handle to 0.
 * @return 0; 13 when phWriter is null or holds 0.
 */
QV_INITIALIZATION_API int QvInitializationWriter_close(QvInitializationWriterHandle_t* phWriter);

/**
 * Writes the sections of a queue, in queue order, as text that QvInitializationReader_parse reads back to the same
 * sections.
 *
 * The written form: a section's comment lines, its header in brackets, one line "key = value" for each member with the
 * member's comment lines above it, and a blank line behind the section. Comment lines begin with "; ". A null value
 * gives the key alone, an empty one "key = " with the blank. Headers, keys and values that wouldn't survive, or could
 * be misread, are written in double quotes with the escapes the reader knows: those with blanks at the ends, a quote in
 * front, a ';', a '#' or control characters, keys with a '=' or a bracket in front, headers with brackets, empty keys
 * and headers.
 *
 * A section with a null pHeader is written without a header line. It can only be told apart as the first of the queue,
 * where its comments go with the section below, if there is one, and else behind its members; further down all of it
 * goes with the section above. So a text that is read and written again is the same. Null elements, and members with
 * neither key nor value, are left out; a null key beside a value is written as an empty key.
 *
 * @param hWriter an open writer.
 * @param hQueue queue of QvInitializationSection_t*. It is walked by popping the front and pushing it back, so that it
 * comes out as it went in; it stays the caller's with all it holds. The caller keeps other threads away from it
 * meanwhile.
 * @param pBuffer receives the text in a new heap block of the malloc family: size bytes at pBegin with a zero byte
 * behind them, offset 0, isAllocated true. The content it had is dropped on success and kept on failure.
 * @return 0; 5 when out
 * of memory; 13 when a handle is 0 or pBuffer is null; else the status of the queue or the buffer. Should
 * the queue refuse to take back an element, for want of memory, that one is left out of it and not deleted.
 */
QV_INITIALIZATION_API int QvInitializationWriter_serialize(QvInitializationWriterHandle_t hWriter,
                                                           QvCommonDQueueHandle_t hQueue, QvCommonBuffer_t* pBuffer);

#ifdef __cplusplus
}
#endif

#endif /* QV_INITIALIZATION_WRITER_H */
