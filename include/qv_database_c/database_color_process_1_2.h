/** @file
 * The record of the colour processing block. The library stores it for the layers that drive the camera, which read
 * it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_COLOR_PROCESS_1_2_H
#define QV_DATABASE_C_DATABASE_COLOR_PROCESS_1_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Colour processing and conversion to YUV in manual mode (category `CP_1_2`, class "CCproc" in the simulator
    document); `ACP_1_2` holds the automatic parameters. */
typedef struct QvDatabaseColorProcess_1_2 {
    bool enable;           /**< switches the block on; a number, 1 or 0, in the simulator document */
    float contrast;        /**< contrast */
    float bright;          /**< brightness */
    float saturation;      /**< saturation */
    float hue;             /**< hue */
    bool useOutConvMatrix; /**< take rgbToyuvMatrix as the output conversion matrix */
    /** output conversion matrix of 3 by 3, used where useOutConvMatrix is set; key "RGB2YUV_matrix" in the simulator
        document [matrix 3x3] */
    float rgbToyuvMatrix[9];
    uint32_t yuvRange; /**< YUV range; key "yuvRange" in both documents */
    uint8_t gamut;     /**< gamut */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseColorProcess_1_2_t;
static_assert(sizeof(QvDatabaseColorProcess_1_2_t) == 88, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorProcess_1_2_parse(QvJsonValue_t* pValue, QvDatabaseColorProcess_1_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorProcess_1_2_serialize(QvDatabaseColorProcess_1_2_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorProcess_1_2_reset(QvDatabaseColorProcess_1_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
