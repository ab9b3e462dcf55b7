/** @file
 * The tuning document: one object whose members are categories under their keys. 50 categories are read and 49 written;
 * AES_2 is read only. Unknown keys are passed over, and a category that the document doesn't name keeps its values.
 */
#ifndef QV_DATABASE_C_DATABASE_TUNING_H
#define QV_DATABASE_C_DATABASE_TUNING_H

#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Reads the categories. pValue is the member `tuning` itself and stays the caller's. 13 for a zero handle or a null
   value. The first category that fails is traced, ends the walk and gives its status; those before it stay read. */
QV_DATABASE_API int QvDatabaseTuning_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue);

/** Writes the categories. pValue is the whole document, in which the member `tuning` is made; it stays the caller's.
    Statuses as above. */
QV_DATABASE_API int QvDatabaseTuning_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue);

#ifdef __cplusplus
}
#endif

#endif
