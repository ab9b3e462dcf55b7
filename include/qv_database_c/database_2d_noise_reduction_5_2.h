/** @file
 * The record of the 2D noise reduction block. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h, but for the null test of the reset.
 */
#ifndef QV_DATABASE_C_DATABASE_2D_NOISE_REDUCTION_5_2_H
#define QV_DATABASE_C_DATABASE_2D_NOISE_REDUCTION_5_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** 2D noise reduction in manual mode (category `2DNR_5_2`, class "C2dnrv5_1" in the simulator document); `A2DNR_5_2`
    holds the automatic parameters. */
typedef struct QvDatabase2DNoiseReduction_5_2 {
    bool enable;              /**< switches the block on; a number, 1 or 0, in the simulator document */
    bool lumaCtrolEnable;     /**< switches luma control on; in the simulator document the number "luma_ctrl_en" */
    uint8_t preGammaStrength; /**< pre-gamma strength; key "pregamma_strength" in the simulator document */
    uint8_t strength;         /**< strength of the noise reduction */
    float sigma;              /**< sigma of the noise reduction */
    uint8_t sigmaRange;       /**< range of the sigma */
    uint16_t sigmaOffset;     /**< offset of the sigma */
    uint16_t lumaCurveX[12];  /**< x points of the luma curve [curve-x lumaCurveY] */
    uint16_t lumaCurveY[12];  /**< y points of the luma curve [curve-y lumaCurveX] */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabase2DNoiseReduction_5_2_t;
static_assert(sizeof(QvDatabase2DNoiseReduction_5_2_t) == 84, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabase2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                         QvDatabase2DNoiseReduction_5_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabase2DNoiseReduction_5_2_serialize(QvDatabase2DNoiseReduction_5_2_t* pConfig,
                                                             QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. Always 0. pConfig must not be null: this reset alone tests nothing. */
QV_DATABASE_API int QvDatabase2DNoiseReduction_5_2_reset(QvDatabase2DNoiseReduction_5_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
