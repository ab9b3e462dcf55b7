/** @file
 * The record of the compand block. The library stores it for the layers that drive the camera, which read it in
 * place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_COMPAND_1_1_H
#define QV_DATABASE_C_DATABASE_COMPAND_1_1_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Companding: expansion of companded data by a curve (category `CPD_1_1`, class "CCpdv1" in the simulator
    document). Reading a simulator document gives each zero entry of expandCurveY the last entry before it that isn't
    zero; leading zeros stay. Writing has no counterpart, and the tuning document carries the curve as it stands. */
typedef struct QvDatabaseCompand_1_1 {
    bool enable;               /**< switches the block on; key "expand_enable" in the simulator document */
    uint32_t expandCurveX[64]; /**< x of the 64 points of the expansion curve [curve-x expandCurveY] */
    /** y of the 64 points; reading a simulator document gives a zero the last nonzero value before it, leading zeros
        stay [curve-y expandCurveX] */
    uint32_t expandCurveY[64];
    char class_[20]; /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseCompand_1_1_t;
static_assert(sizeof(QvDatabaseCompand_1_1_t) == 536, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseCompand_1_1_parse(QvJsonValue_t* pValue, QvDatabaseCompand_1_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseCompand_1_1_serialize(QvDatabaseCompand_1_1_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseCompand_1_1_reset(QvDatabaseCompand_1_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
