/** @file
 * A block of memory with a cursor, and the loading and saving of files.
 */
#ifndef QV_COMMON_BUFFER_H
#define QV_COMMON_BUFFER_H

#include <stdbool.h>
#include <stddef.h>

#include <qv_common_c/qv_common_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A block of memory with a cursor. A caller may fill one by hand: set `pBegin` to a block of malloc, `size` to its
 * length and `isAllocated` to true. */
typedef struct QvCommonBuffer {
    char* pBegin;     /**< first byte of the content, or null */
    size_t offset;    /**< read or write cursor, in bytes from pBegin */
    size_t size;      /**< number of content bytes */
    void* pUserData;  /**< free for whoever fills the buffer; clear and load2 set it to null */
    bool isAllocated; /**< true: pBegin belongs to the buffer and is released with free */
} QvCommonBuffer_t;

/** Makes an empty buffer: all fields null, zero or false. `*ppBuffer` must hold null and receives the buffer, which the
 * caller releases with QvCommonBuffer_delete. Status 0; 5 no memory; 13 bad arguments. */
QV_COMMON_API int QvCommonBuffer_create(QvCommonBuffer_t** ppBuffer);

/** Releases `pBegin` if it is allocated, then the record, and sets `*ppBuffer` to null. Only for buffers made by
 * QvCommonBuffer_create. Status 0; 13 when `ppBuffer` or `*ppBuffer` is null. */
QV_COMMON_API int QvCommonBuffer_delete(QvCommonBuffer_t** ppBuffer);

/** Drops the content: releases `pBegin` if it is allocated and sets all fields, `pUserData` too, to null, zero or
 * false. Status 0; 13 when `pBuffer` is null. */
QV_COMMON_API int QvCommonBuffer_clear(QvCommonBuffer_t* pBuffer);

/** The most that QvCommonBuffer_load2 reads: 1 GiB. A device may have no end. */
#define QV_COMMON_BUFFER_LOAD_LIMIT 1073741824U

/** Reads a file into the buffer. `offset` is the first byte to read, counted from 0; `size` the count of bytes, 0 for
 * all up to the end. Where the file ends before, the buffer gets what there is. More than QV_COMMON_BUFFER_LOAD_LIMIT
 * bytes are refused, and so are more that would have to be read up to `offset`. What has no size, a pipe or a device,
 * is read to its end. Replaces the earlier content of the buffer, as after QvCommonBuffer_clear. Afterwards `offset` is
 * 0, `size` the count of bytes read, and a zero byte, which `size` doesn't count, follows the content. On failure the
 * buffer is unchanged. Status 0; 3 no such file; 4 may not be read; 5 no memory; 6 over the limit, with a trace at
 * Error level that names the file; 9 is a folder; 11 read error; 13 bad arguments. */
QV_COMMON_API int QvCommonBuffer_load2(const char* pFilename, size_t offset, size_t size, QvCommonBuffer_t* pBuffer);

/** Writes the first `size` bytes from `pBegin` to a file, 0 for all of the content. `pBegin` may be null when the
 * buffer's size is 0; that makes an empty file. The cursor plays no part. The file is replaced at once or not at all:
 * the bytes go to a new file in the same folder, and only when that is whole on the disk does it take the name. On
 * failure the old file is as it was and nothing is left beside it. A process that is killed on the way leaves nothing
 * either, or a file ".qv_save.*" that the next save of the same file removes. A limit on the size of files
 * (RLIMIT_FSIZE) gives a status and no signal. An existing file's permission bits are kept; a new one gets those that
 * the process's umask leaves. Of a symbolic link the target is replaced and the link stays. What exists and isn't a
 * regular file, such as a pipe or a device, is written through; a reader that goes away gives a status and no signal.
 * Status 0; 3 no such folder; 4 may not be written; 5 no memory; 6 `size` is more than the buffer holds; 9 is a folder;
 * 12 write error; 13 bad arguments. */
QV_COMMON_API int QvCommonBuffer_save2(QvCommonBuffer_t* pBuffer, const char* pFilename, size_t size);

/** A block of bytes that stays the caller's. `pBegin` may be null when `size` is 0. */
typedef struct QvCommonBufferPart {
    const char* pBegin; /**< first byte */
    size_t size;        /**< number of bytes */
} QvCommonBufferPart_t;

/** Writes `number` blocks, one behind the other, to a file as QvCommonBuffer_save2 writes one, without bringing them
 * together in memory first. Statuses as there, without 6. */
QV_COMMON_API int QvCommonBuffer_saveParts(const QvCommonBufferPart_t* pParts, size_t number, const char* pFilename);

#ifdef __cplusplus
}
#endif

#endif
