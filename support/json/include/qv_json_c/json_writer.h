/** @file
 * The writer of JSON texts.
 */
#ifndef QV_JSON_C_JSON_WRITER_H
#define QV_JSON_C_JSON_WRITER_H

#include <stdint.h>

#include <qv_json_c/json_value.h>
#include <qv_json_c/qv_json_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A writer; zero means none. It holds nothing but its parameters, so several threads may use it at once. */
typedef uintptr_t QvJsonWriterHandle_t;

/** How texts are laid out. */
typedef struct QvJsonWriterOpenParam {
    int32_t decimals;              /**< digits behind the point of a float, 0 to 17; with 0 there is no point */
    uint32_t elementNumberPerLine; /**< list items on one line; 0 means all of them */
    char indent[10];               /**< blanks or tabs of one level; ends at a zero byte or after all ten */
} QvJsonWriterOpenParam_t;

/**
 * Opens a writer. pParam is copied; null means 6 decimals, 0 elements and two blanks. *pHandle receives the writer.
 * 0; 5 when memory runs out; 13 for a null pHandle, decimals out of range or an indent of other characters.
 */
QV_JSON_API int QvJsonWriter_open(QvJsonWriterOpenParam_t* pParam, QvJsonWriterHandle_t* pHandle);

/** Closes the writer and zeroes *pHandle. 0, also where *pHandle is zero; 13 for a null argument. */
QV_JSON_API int QvJsonWriter_close(QvJsonWriterHandle_t* pHandle);

/**
 * Gives the document's text: UTF-8, lines ended by a line feed, the last one too, and a zero byte behind it.
 *
 * Members stand one to a line, in the order in which they were added. A list stands in brackets with ", " between its
 * items, which count as one level deeper. Floats have exactly the asked number of digits, correctly rounded, whatever
 * the locale; what isn't finite is written as null. Bytes that aren't UTF-8 are written as U+FFFD, so that the reader
 * takes every text that the writer makes. Comments are written back: pComment in lines of its own above the value,
 * pComment2 at the end of the value's line with its line ends turned into blanks, each line trimmed; a list whose items
 * have comments gets one line an item. A text with comments that was written, read and written again is the same.
 *
 * @param handle an open writer
 * @param pValue the root, not null; not changed
 * @param ppText receives a new heap string, which the caller releases with free(); left as it was after a failure
 * @return 0; 5 when memory runs out; 6 for a tree deeper than the reader takes (with a trace at Error level); 13 for bad
 * arguments.
 */
QV_JSON_API int QvJsonWriter_stringify(QvJsonWriterHandle_t handle, QvJsonValue_t* pValue, char** ppText);

/**
 * Writes the same text to a file, which is replaced as a whole or left as it was. pFilename is not null. Beside the
 * statuses above come those of QvCommonBuffer_save2 (3, 4, 9, 12), with a trace at Error level that names the file.
 */
QV_JSON_API int QvJsonWriter_save(QvJsonWriterHandle_t handle, QvJsonValue_t* pValue, const char* pFilename);

#ifdef __cplusplus
}
#endif

#endif
