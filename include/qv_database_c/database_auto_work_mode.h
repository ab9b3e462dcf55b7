/** @file
 * The automatic work mode: the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_WORK_MODE_H
#define QV_DATABASE_C_DATABASE_AUTO_WORK_MODE_H

#include <assert.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Automatic work mode, category `AWM`. The tuning document and the simulator document (class "AutoWorkMode") carry
    it. The record has no switch of its own, and QvDatabase_reset() leaves this category alone. */
typedef struct QvDatabaseAutoWorkMode {
    uint8_t autoWorkMode; /**< the work mode; key "workMode" in the simulator document */
    char class_[20];      /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseAutoWorkMode_t;
static_assert(sizeof(QvDatabaseAutoWorkMode_t) == 21, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoWorkMode_parse(QvJsonValue_t* pValue, QvDatabaseAutoWorkMode_t* pConfig);
/** Adds the members of the record to its object in a tuning document: 13 for null, else 0. A member that cannot be
    added is traced at Debug. */
QV_DATABASE_API int QvDatabaseAutoWorkMode_serialize(QvDatabaseAutoWorkMode_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoWorkMode_reset(QvDatabaseAutoWorkMode_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
