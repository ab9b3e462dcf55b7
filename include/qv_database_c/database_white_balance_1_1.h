/** @file
 * The record of the white balance block. The library stores it for the layers that drive the camera, which read it
 * in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_WHITE_BALANCE_1_1_H
#define QV_DATABASE_C_DATABASE_WHITE_BALANCE_1_1_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** White balance in manual mode (category `WB_1_1`, class "CManualWb" in the simulator document); `AWB_3` is the
    automatic control. A reset leaves the gains at 0, not at 1. */
typedef struct QvDatabaseWhiteBalance_1_1 {
    bool enable;   /**< switches the block on; a number, 1 or 0, in the simulator document */
    float gain[4]; /**< one gain for each of four colour channels */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseWhiteBalance_1_1_t;
static_assert(sizeof(QvDatabaseWhiteBalance_1_1_t) == 44, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseWhiteBalance_1_1_parse(QvJsonValue_t* pValue, QvDatabaseWhiteBalance_1_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseWhiteBalance_1_1_serialize(QvDatabaseWhiteBalance_1_1_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseWhiteBalance_1_1_reset(QvDatabaseWhiteBalance_1_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
