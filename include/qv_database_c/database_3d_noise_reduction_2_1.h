/** @file
 * The record of the 3D noise reduction block. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_3D_NOISE_REDUCTION_2_1_H
#define QV_DATABASE_C_DATABASE_3D_NOISE_REDUCTION_2_1_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** 3D (temporal) noise reduction in manual mode (category `3DNR_2_1`, class "C3dnrv1" in the simulator document);
    `A3DNR_2_1` holds the automatic parameters. */
typedef struct QvDatabase3DNoiseReduction_2_1 {
    bool enable;                    /**< switches the block on; a number, 1 or 0, in the simulator document */
    bool motionDilateEn;            /**< switches motion dilation on; a number, 1 or 0, in both documents */
    uint8_t strength;               /**< strength of the noise reduction */
    int32_t motionInv;              /**< motion parameter inv; may be negative, also in documents */
    uint16_t delta;                 /**< parameter delta */
    uint16_t updateTemporal;        /**< temporal update */
    uint16_t strengthCurveTemporal; /**< temporal curve strength */
    uint16_t temporalCurve[17];     /**< 17 points of the temporal curve [curve] */
    uint8_t rangeT;                 /**< parameter range T */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabase3DNoiseReduction_2_1_t;
static_assert(sizeof(QvDatabase3DNoiseReduction_2_1_t) == 72, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabase3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                         QvDatabase3DNoiseReduction_2_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabase3DNoiseReduction_2_1_serialize(QvDatabase3DNoiseReduction_2_1_t* pConfig,
                                                             QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabase3DNoiseReduction_2_1_reset(QvDatabase3DNoiseReduction_2_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
