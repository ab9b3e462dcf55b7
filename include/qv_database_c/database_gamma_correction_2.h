/** @file
 * The record of the gamma correction block. The library stores it for the layers that drive the camera, which read
 * it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_GAMMA_CORRECTION_2_H
#define QV_DATABASE_C_DATABASE_GAMMA_CORRECTION_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Gamma correction in manual mode (category `GC_2`, class "CGamma64" in the simulator document); `AGC_2` holds the
    automatic parameters. */
typedef struct QvDatabaseGammaCorrection_2 {
    bool enable;          /**< switches the block on; a number, 1 or 0, in the simulator document */
    bool standard;        /**< standard switch, with the value standardVal */
    float standardVal;    /**< value that goes with standard */
    uint16_t curve[64];   /**< 64 points of the gamma curve, at curvePx where userCurveX is set [curve-y curvePx] */
    bool userCurveX;      /**< take the x positions of the points from curvePx */
    uint32_t curvePx[64]; /**< 64 x positions, used where userCurveX is set [curve-x curve] */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseGammaCorrection_2_t;
static_assert(sizeof(QvDatabaseGammaCorrection_2_t) == 420, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseGammaCorrection_2_parse(QvJsonValue_t* pValue, QvDatabaseGammaCorrection_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseGammaCorrection_2_serialize(QvDatabaseGammaCorrection_2_t* pConfig,
                                                          QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseGammaCorrection_2_reset(QvDatabaseGammaCorrection_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
