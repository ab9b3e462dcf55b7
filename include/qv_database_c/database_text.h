/** @file
 * The text container: what a ".json" file holds. Up to four kinds of content stand side by side, told apart by the
 * members of the top-level object: `version`, `root` (a simulator document), `header` (calibration, with its neighbours
 * `sensor` and `system`) and `tuning`. They are read in this order, whatever the order in the file. A text whose first
 * byte is `<` goes to the calibration reader alone.
 */
#ifndef QV_DATABASE_C_DATABASE_TEXT_H
#define QV_DATABASE_C_DATABASE_TEXT_H

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Reads a document from a buffer whose content is followed by a zero byte; the buffer stays the caller's. 13 for a
   zero handle or a null buffer, 7 for a text that is no JSON (a trace tells the place), else the status of the first
   piece that fails; the pieces before it stay read. A version that differs from the one at hand costs a Warning and
   replaces it. */
QV_DATABASE_API int QvDatabaseText_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer);

/** Writes `version`, calibration, and `tuning` or `root` as the setting's protocol says. The buffer must hold nothing;
   it receives a heap text that it owns. Sets `exportDate` of MISC to the current time. 13 as above, else 0 or the
   status of the first piece that fails. */
QV_DATABASE_API int QvDatabaseText_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
