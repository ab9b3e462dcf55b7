/** @file
 * The control parameters of automatic exposure: the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_EXPOSURE_3_H
#define QV_DATABASE_C_DATABASE_AUTO_EXPOSURE_3_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Control parameters of automatic exposure, category `AE_3`. A flat record without schedules, which the tuning
    document and the simulator document (class "AdaptiveAe") carry; the exposure control above the library works with
    it. */
typedef struct QvDatabaseAutoExposure_3 {
    bool enable;          /**< switches automatic exposure on */
    float setPoint;       /**< set point, the value that the control aims at */
    float tolerance;      /**< tolerance of the control */
    float dampOver;       /**< damping while overexposed */
    float dampUnder;      /**< damping while underexposed */
    float dampUnderRatio; /**< ratio of the damping while underexposed */
    float dampUnderGain;  /**< gain of the damping while underexposed */
    float dampOverRatio;  /**< ratio of the damping while overexposed */
    float dampOverGain;   /**< gain of the damping while overexposed */
    float motionFilter;   /**< motion filter */
    float motionThr;      /**< motion threshold; key "motionThreshold" in the simulator document */
    float targetFilter;   /**< filter of the target */

    float lowlightLinearRepress[8]; /**< repression in low light, eight numbers of the Linear set */
    float lowlightLinearGain[8];    /**< gains in low light, eight numbers of the Linear set */
    uint32_t lowlightLinearLevel;   /**< level in low light, one for the Linear set */
    float lowlightHdrRepress[8];    /**< repression in low light, eight numbers of the HDR set */
    float lowlightHdrGain[8];       /**< gains in low light, eight numbers of the HDR set */
    uint32_t lowlightHdrLevel;      /**< level in low light, one for the HDR set */

    float wdrContrastMin; /**< least WDR contrast */
    float wdrContrastMax; /**< greatest WDR contrast */
    bool frameCalEnable;  /**< switches "frameCal" on */
    bool autoHdrEnable;   /**< switches automatic HDR on */

    float expv2WindowWeight[1024]; /**< weights of the exposure windows; simulator key "expV2WindowWeight"
                                      [weights 32x32] */
    uint8_t roiNum;         /**< regions of interest in use; simulator key "roiNumber" [0..25; count-of roiWindow] */
    float roiWeight;        /**< weight of the regions of interest */
    float roiWindow[25][5]; /**< regions, five numbers each; all 25 are written whatever `roiNum` is [window] */

    uint16_t antiFlickerMode;  /**< anti-flicker mode; spelled "antiFlikerMode" in both documents */
    uint16_t semMode;          /**< SEM mode */
    uint16_t mode;             /**< mode of the control; in no text form */
    float userDefinedPeriodus; /**< user-defined flicker period; simulator key "FlickerUseDefinedPeriodus" */

    char class_[20]; /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseAutoExposure_3_t;
static_assert(sizeof(QvDatabaseAutoExposure_3_t) == 4832, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoExposure_3_parse(QvJsonValue_t* pValue, QvDatabaseAutoExposure_3_t* pConfig);
/** Adds the members of the record to its object in a tuning document: 13 for null, else 0. A member that cannot be
    added is traced at Debug. */
QV_DATABASE_API int QvDatabaseAutoExposure_3_serialize(QvDatabaseAutoExposure_3_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoExposure_3_reset(QvDatabaseAutoExposure_3_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
