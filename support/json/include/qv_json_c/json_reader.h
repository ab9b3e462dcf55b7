/** @file
 * The reader of JSON texts.
 */
#ifndef QV_JSON_C_JSON_READER_H
#define QV_JSON_C_JSON_READER_H

#include <stdint.h>

#include <qv_json_c/json_value.h>
#include <qv_json_c/qv_json_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A reader; zero means none. One thread at a time may use it. It keeps working memory from one text to the next. */
typedef uintptr_t QvJsonReaderHandle_t;

/** Opens a reader. *pHandle receives it. 0; 5 when memory runs out; 13 for a null argument. */
QV_JSON_API int QvJsonReader_open(QvJsonReaderHandle_t* pHandle);

/** Closes the reader and zeroes *pHandle; trees that it gave live on. 0, also where *pHandle is zero; 13 for null. */
QV_JSON_API int QvJsonReader_close(QvJsonReaderHandle_t* pHandle);

/**
 * Reads the text from pBegin up to pEnd, the first byte behind it, and gives a new tree. No terminator is needed.
 *
 * The text is JSON as RFC 8259 has it, in UTF-8, and nothing looser, but for these:
 * - A byte order mark at the front is skipped.
 * - Comments may stand between tokens, from two slashes to the end of the line, or between slash-star and star-slash.
 *   What stands before a value, or before its key, becomes its pComment. What follows a value on its line becomes its
 *   pComment2, also behind the comma, unless another value follows on that line. What has no value behind it (before
 *   a closing bracket, at the end of the text) becomes pComment2 of the value before it, or of the container if that is
 *   empty. Each line is trimmed; several lines are joined by line feeds. A zero byte may not stand in a comment;
 *   whatever else stands in one is kept.
 *
 * Numbers without point and exponent are Integer: from -2^63 to 2^63-1 as they are, up to 2^64-1 with their 64 bits
 * kept (so they come out negative); beyond that they are Float. Floats are correctly rounded, independent of the
 * locale, and saturate at the largest finite double. A key that an object holds twice keeps its first place and its
 * last value. A zero character ("\u0000") ends the C string it stands in. Containers may be nested 512 deep.
 *
 * @param handle an open reader
 * @param pBegin not null
 * @param pEnd not null, not before pBegin
 * @param ppValue receives the tree, which is the caller's and released by QvJsonValue_delete; holds null on entry, and
 *                still does after a failure
 * @return 0; 5 when memory runs out; 7 for a text that is no document, the empty text among them; 13 for bad arguments.
 * Status 7 comes with a trace at Error level that says what was expected and where: line and column count from 1, the
 * column in characters.
 */
QV_JSON_API int QvJsonReader_parse(QvJsonReaderHandle_t handle, const char* pBegin, const char* pEnd,
                                   QvJsonValue_t** ppValue);

/**
 * The same from a file. pFilename is not null. Beside the statuses above come those of QvCommonBuffer_load2 (3 not
 * found, 4 access denied, 6 over 1 GiB, 9 a folder, 11 read error), with a trace at Error level that names the file.
 */
QV_JSON_API int QvJsonReader_load(QvJsonReaderHandle_t handle, const char* pFilename, QvJsonValue_t** ppValue);

#ifdef __cplusplus
}
#endif

#endif
