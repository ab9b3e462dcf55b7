/** @file
 * The reader of initialization files.
 */
#ifndef QV_INITIALIZATION_READER_H
#define QV_INITIALIZATION_READER_H

#include <stdint.h>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_initialization/qv_initialization_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A reader; 0 is none. It keeps nothing between calls, so several threads may parse with one reader. */
typedef uintptr_t QvInitializationReaderHandle_t;

/**
 * Opens a reader.
 * @param phReader receives the handle; must hold 0.
 * @return 0; 5 when out of memory; 13 when phReader is null or doesn't hold 0.
 */
QV_INITIALIZATION_API int QvInitializationReader_open(QvInitializationReaderHandle_t* phReader);

/**
 * Closes the reader and sets the handle to 0.
 * @return 0; 13 when phReader is null or holds 0.
 */
QV_INITIALIZATION_API int QvInitializationReader_close(QvInitializationReaderHandle_t* phReader);

/**
 * Reads the text in a buffer and pushes one new QvInitializationSection_t* for each section, in file order, to the back
 * of the queue. Sections and keys that occur twice arrive twice.
 *
 * The syntax, line by line; blanks (space and tab) around a header, key or value do not count:
 * - "[name]" begins a section. Keys before the first header form a section whose pHeader is null.
 * - "key = value" is a member. The first '=' parts the two. "key =" has an empty value, "key" alone a null one.
 * - A line that begins with ';' or '#' is a comment of the section or key below it. Comments at the end of the file go
 * to the last section; a file of comments alone gives one section without header that holds them.
 * - Marks inside a line are text: "path = /a;b #c" keeps all of it.
 * - A header, key or value in double quotes stands for what is between them, with the escapes of the next line,
 * where HH are two hexadecimal digits and not 00. Any other escape stays as it is written. What begins with a quote
 * but isn't a whole quoted text, since the closing quote is missing or other text follows, is taken as it stands,
 * quotes and all.
 * @code
 * \\ \" \n \r \t \xHH
 * @endcode
 * - A comment may follow the ']' of a header and whatever ends with a quoted text. It counts as if it stood above,
 * last. Lines end in LF, CRLF or CR; the last one needs no end. A UTF-8 byte order mark at the start is skipped.
 *
 * @param hReader an open reader.
 * @param pBuffer the text, size bytes from pBegin; offset is neither read nor changed. pBegin may be null when size
 * is 0.
 * @param hQueue an open queue, best opened with QvInitializationSection_delete as its delete handler.
 * @return 0; 5 when out of memory; 7 for a syntax error: a header without ']', text behind the ']', a '=' without a
 * key, or a zero byte. An Error trace then tells the line and the column in bytes, both from 1: "syntax error(7):
 * expected ']' at line 3, column 9". 13 when a handle is 0, pBuffer is null, or its pBegin is null with a size. Where
 * the text can't be read to its end nothing is pushed. When a push fails its status is returned, and the sections
 * pushed before it stay in the queue.
 */
QV_INITIALIZATION_API int QvInitializationReader_parse(QvInitializationReaderHandle_t hReader,
                                                       QvCommonBuffer_t* pBuffer, QvCommonDQueueHandle_t hQueue);

#ifdef __cplusplus
}
#endif

#endif /* QV_INITIALIZATION_READER_H */
