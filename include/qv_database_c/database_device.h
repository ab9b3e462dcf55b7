/** @file
 * The device on which the pipeline runs (category `DVC`).
 */
#ifndef QV_DATABASE_C_DATABASE_DEVICE_H
#define QV_DATABASE_C_DATABASE_DEVICE_H

#include <assert.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Device configuration (category `DVC`), carried by tuning documents, initialization files and the binary image. The
    library stores the numbers and gives them no meaning. QvDatabase_reset puts the defaults back. */
typedef struct QvDatabaseDevice {
    uint16_t operation; /**< operation; default 1 */
    uint16_t portId;    /**< port id; default 1 */
    uint16_t workMode;  /**< work mode; default 1 */
} QvDatabaseDevice_t;
static_assert(sizeof(QvDatabaseDevice_t) == 6, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. 0, or 13 where an argument is null; a missing member is
    traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseDevice_parse(QvJsonValue_t* pValue, QvDatabaseDevice_t* pConfig);

/** Adds the members of the record to its object in a tuning document. 0, or 13 where an argument is null. */
QV_DATABASE_API int QvDatabaseDevice_serialize(QvDatabaseDevice_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDevice_reset(QvDatabaseDevice_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
