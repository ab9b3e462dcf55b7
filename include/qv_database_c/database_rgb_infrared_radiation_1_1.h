/** @file
 * The record of the RGB-infrared block. The library stores it for the layers that drive the camera, which read it
 * in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_RGB_INFRARED_RADIATION_1_1_H
#define QV_DATABASE_C_DATABASE_RGB_INFRARED_RADIATION_1_1_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Processing of sensors with infrared pixels beside red, green and blue (category `RGBIR_1_1`, class "CRgbIR" in
    the simulator document). */
typedef struct QvDatabaseRgbInfraredRadiation_1_1 {
    bool enable;             /**< switches the block on; a number, 1 or 0, in the simulator document */
    float ccMatrix[12];      /**< colour correction matrix of 12 coefficients */
    uint16_t dpccMidTh[4];   /**< four mid thresholds of the block's defect pixel correction */
    uint16_t dpccTh[4];      /**< four thresholds of the block's defect pixel correction */
    uint32_t irThr;          /**< infrared threshold; key "ir_threshold" in the simulator document */
    uint32_t lThr;           /**< threshold l; key "l_threshold" in the simulator document */
    uint16_t irBayerPattern; /**< infrared Bayer pattern; key "irbayer_pattern" in the simulator document */
    uint16_t outRgbPattern;  /**< RGB pattern of the output */

    bool isAlreadyEnabled; /**< for the layers above; no text form carries it */
    char class_[20];       /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseRgbInfraredRadiation_1_1_t;
static_assert(sizeof(QvDatabaseRgbInfraredRadiation_1_1_t) == 104, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseRgbInfraredRadiation_1_1_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseRgbInfraredRadiation_1_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseRgbInfraredRadiation_1_1_serialize(QvDatabaseRgbInfraredRadiation_1_1_t* pConfig,
                                                                 QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseRgbInfraredRadiation_1_1_reset(QvDatabaseRgbInfraredRadiation_1_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
