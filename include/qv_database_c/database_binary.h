/** @file
 * The binary image: what a file holds whose name ends neither in ".json" nor in ".ini". The records of 49 categories
 * stand one after another, byte for byte as in memory, in a fixed order, 564730 bytes in all; there is no header and no
 * padding between them. An image fits only builds whose records have the same layout: 64-bit, little-endian.
 */
#ifndef QV_DATABASE_C_DATABASE_BINARY_H
#define QV_DATABASE_C_DATABASE_BINARY_H

#include <stddef.h>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Copies the records out of a buffer, from its `offset` on, and advances that. The buffer stays the caller's and must
   not be null. 13 for a zero handle; 6, without a trace, when the buffer ends before a record does: the records before
   it have been replaced. Bytes behind the last record are passed over. At Debug each record leaves a line with its
   place. */
QV_DATABASE_API int QvDatabaseBinary_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer);

/** With pTotalSize: adds the sizes of all records to *pTotalSize, which the caller has set to 0, and touches nothing
   else; pBuffer may be null then. Without: copies the records into the buffer from its `offset` on and advances that.
   13 for a zero handle, 6 when the buffer is too short. */
QV_DATABASE_API int QvDatabaseBinary_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer,
                                               size_t* pTotalSize);

#ifdef __cplusplus
}
#endif

#endif
