/** @file
 * The record of the colour noise reduction block. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_COLOR_NOISE_REDUCTION_2_2_H
#define QV_DATABASE_C_DATABASE_COLOR_NOISE_REDUCTION_2_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Colour noise reduction in manual mode (category `CNR_2_2`, class "CCnrv2_opt" in the simulator document);
    `ACNR_2_2` holds the automatic parameters. */
typedef struct QvDatabaseColorNoiseReduction_2_2 {
    bool enable;               /**< switches the block on; a number, 1 or 0, in the simulator document */
    float sigmaLayer[3];       /**< one sigma for each of three layers; key "c_sigma_layer" in the simulator document */
    uint8_t strength1;         /**< strength of the noise reduction; key "cnr_strength" in the simulator document */
    uint8_t textureMaskSelect; /**< selection of the texture mask */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseColorNoiseReduction_2_2_t;
static_assert(sizeof(QvDatabaseColorNoiseReduction_2_2_t) == 40, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseColorNoiseReduction_2_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorNoiseReduction_2_2_serialize(QvDatabaseColorNoiseReduction_2_2_t* pConfig,
                                                                QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorNoiseReduction_2_2_reset(QvDatabaseColorNoiseReduction_2_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
