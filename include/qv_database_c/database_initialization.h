/** @file
 * The initialization document: the hand-editable form of the system configuration, an ".ini" file with the sections
 * C_MODEL, DVC, IPT, OPT, SS and TM. A section's name is the category's key.
 */
#ifndef QV_DATABASE_C_DATABASE_INITIALIZATION_H
#define QV_DATABASE_C_DATABASE_INITIALIZATION_H

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Reads the sections of a buffer in file order; one that occurs twice is read twice, one of another name is passed
   over, and keys that the file lacks keep their values. Handle and buffer must not be null; the buffer stays the
   caller's. 0, or the status of the text's reader or of the queue after an error trace. A section that fails costs a
   Warning. */
QV_DATABASE_API int QvDatabaseInitialization_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer);

/** Writes the six sections, always and in this order, into the buffer, which receives a heap text that it owns. Handle
   and buffer must not be null. 0, or the status of the queue or the text's writer after an error trace. */
QV_DATABASE_API int QvDatabaseInitialization_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
