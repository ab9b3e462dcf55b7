/** @file
 * The record of the high dynamic range block. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_HIGH_DYNAMIC_RANGE_2_1_H
#define QV_DATABASE_C_DATABASE_HIGH_DYNAMIC_RANGE_2_1_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** High dynamic range (category `HDR_2_1`, class "CHdrv2" in the simulator document).
    QvDatabase_reset leaves this record as it is. */
typedef struct QvDatabaseHighDynamicRange_2_1 {
    bool enable;            /**< switches the block on; a number, 1 or 0, in the simulator document */
    float ratio[2];         /**< two ratios */
    float transRange[4][2]; /**< four trans ranges, in documents four lists of two numbers */
    uint8_t colorWeight[3]; /**< three colour weights */
    int8_t extendBit[2];    /**< two bit extensions; may be negative, also in documents */
    bool bypass;            /**< bypass switch */
    uint16_t bypassSelect;  /**< selection for the bypass */
    uint16_t sensorType;    /**< type of the sensor; only the simulator document carries it */

    char class_[20];       /**< class name in the simulator document; not terminated when it is full */
    bool isAlreadyEnabled; /**< for the layers above; no text form carries it */
} QvDatabaseHighDynamicRange_2_1_t;
static_assert(sizeof(QvDatabaseHighDynamicRange_2_1_t) == 76, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseHighDynamicRange_2_1_parse(QvJsonValue_t* pValue,
                                                         QvDatabaseHighDynamicRange_2_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseHighDynamicRange_2_1_serialize(QvDatabaseHighDynamicRange_2_1_t* pConfig,
                                                             QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseHighDynamicRange_2_1_reset(QvDatabaseHighDynamicRange_2_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
