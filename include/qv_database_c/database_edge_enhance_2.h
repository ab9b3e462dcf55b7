/** @file
 * The record of the edge enhance block. The library stores it for the layers that drive the camera, which read it
 * in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_EDGE_ENHANCE_2_H
#define QV_DATABASE_C_DATABASE_EDGE_ENHANCE_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Edge enhancement with the CA and the DCI curve, in manual mode (category `EE_2`, class "CEEv1" in the simulator
    document); `AEE_2` holds the automatic parameters. The simulator document names the fields dciCurveCfg without
    that prefix, such as "degamma" and "inflct_1_x". */
typedef struct QvDatabaseEdgeEnhance_2 {
    bool enable;      /**< switches the block on; a number, 1 or 0, in the simulator document */
    bool caEnable;    /**< switches CA on */
    bool curveEnable; /**< switches the curve on */
    bool dciEnable;   /**< switches DCI on */

    uint32_t eeEdgeGain;   /**< edge gain */
    uint8_t eeSrcStrength; /**< source strength */
    uint8_t eeStrength;    /**< strength of the edge enhancement */
    uint16_t eeUvGain;     /**< UV gain; key "eeUvGain" in the tuning document, where `AEE_2` has "eeUVGain" */
    uint32_t eeYDownGain;  /**< Y gain, down */
    uint32_t eeYUpGain;    /**< Y gain, up */

    uint16_t caMode;       /**< mode of CA */
    uint16_t caCurve[65];  /**< 65 points of the CA curve [curve] */
    uint16_t dciCurve[65]; /**< 65 points of the DCI curve [curve] */

    float dciCurveCfgDegamma;         /**< DCI curve: degamma; simulator key "degamma" */
    uint16_t dciCurveCfgDciMode;      /**< DCI curve: mode; simulator key "dci_mode" */
    float dciCurveCfgLowlumaIdx;      /**< DCI curve: index of low luma; simulator key "low_luma_index" */
    float dciCurveCfgMiddlelumaIdx;   /**< DCI curve: index of middle luma; simulator key "middle_luma_index" */
    float dciCurveCfgHighlumaIdx;     /**< DCI curve: index of high luma; simulator key "high_luma_index" */
    uint16_t dciCurveCfgInflctStartY; /**< DCI curve: y of the start; simulator key "inflct_start_y" */
    uint16_t dciCurveCfgInflct1X;     /**< DCI curve: x of inflection 1; simulator key "inflct_1_x" */
    uint16_t dciCurveCfgInflct1Y;     /**< DCI curve: y of inflection 1; simulator key "inflct_1_y" */
    uint16_t dciCurveCfgInflct2X;     /**< DCI curve: x of inflection 2; simulator key "inflct_2_x" */
    uint16_t dciCurveCfgInflct2Y;     /**< DCI curve: y of inflection 2; simulator key "inflct_2_y" */
    uint16_t dciCurveCfgInflctStopY;  /**< DCI curve: y of the stop; simulator key "inflct_stop_y" */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseEdgeEnhance_2_t;
static_assert(sizeof(QvDatabaseEdgeEnhance_2_t) == 340, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseEdgeEnhance_2_parse(QvJsonValue_t* pValue, QvDatabaseEdgeEnhance_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document, "dciEnable" ahead of "curveEnable". 0, or 13
    for null. */
QV_DATABASE_API int QvDatabaseEdgeEnhance_2_serialize(QvDatabaseEdgeEnhance_2_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseEdgeEnhance_2_reset(QvDatabaseEdgeEnhance_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
