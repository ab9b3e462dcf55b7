/** @file
 * The record of the defect pixel cluster correction block. The library stores it for the layers that drive the
 * camera, which read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_DEFECT_PIXEL_CLUSTER_CORRECTION_H
#define QV_DATABASE_C_DATABASE_DEFECT_PIXEL_CLUSTER_CORRECTION_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Defect pixel cluster correction in manual mode (category `DPCC`, class "CDpcc" in the simulator document);
    `ADPCC` holds the automatic parameters. The record holds its bad pixel table in itself and owns no heap memory.
    bptNum doesn't bound the positions in documents: both lists are read up to 2048 entries and always written with
    2048. A field of 2 by 3 is two lists of three numbers in documents. */
typedef struct QvDatabaseDefectPixelClusterCorrection {
    bool enable; /**< switches the block on; a number, 1 or 0, in the simulator document */

    bool bptEnable;         /**< switches the bad pixel table on */
    uint16_t bptNum;        /**< length of the bad pixel table, bptPosX with bptPosY [0..2048; count-of bptPosX] */
    uint8_t bptOutMode;     /**< output mode of the bad pixel table */
    uint16_t bptPosX[2048]; /**< x coordinates of the bad pixels; the first bptNum are in use [px] */
    uint16_t bptPosY[2048]; /**< y coordinates of the bad pixels; the first bptNum are in use [px] */

    uint8_t lineMadFac[2][3]; /**< line MAD factors; two lists of three in documents */
    uint8_t lineThresh[2][3]; /**< line thresholds; two lists of three in documents */
    uint16_t methodsSet[3];   /**< three method sets */
    uint8_t outMode;          /**< output mode */
    uint8_t pgFac[2][3];      /**< PG factors; two lists of three in documents */
    uint8_t rgFac[2][3];      /**< RG factors; two lists of three in documents */
    uint8_t rndOffs[2][3];    /**< RND offsets; two lists of three in documents */
    uint8_t rndThresh[2][3];  /**< RND thresholds; two lists of three in documents */
    uint8_t roLimits[2][3];   /**< RO limits; two lists of three in documents */
    uint8_t setUse;           /**< use of the sets */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseDefectPixelClusterCorrection_t;
static_assert(sizeof(QvDatabaseDefectPixelClusterCorrection_t) == 8270, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDefectPixelClusterCorrection_parse(QvJsonValue_t* pValue,
                                                                 QvDatabaseDefectPixelClusterCorrection_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDefectPixelClusterCorrection_serialize(QvDatabaseDefectPixelClusterCorrection_t* pConfig,
                                                                     QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDefectPixelClusterCorrection_reset(QvDatabaseDefectPixelClusterCorrection_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
