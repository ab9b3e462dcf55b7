/** @file
 * The control parameters of automatic focus: the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_FOCUS_3_H
#define QV_DATABASE_C_DATABASE_AUTO_FOCUS_3_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Control parameters of automatic focus, category `AF_3`. A flat record without schedules, which the tuning
    document and the simulator document (class "Af") carry; the focus control above the library works with it. */
typedef struct QvDatabaseAutoFocus_3 {
    bool enable;              /**< switches automatic focus on */
    float weightWindow[3];    /**< three weights of windows */
    float cStableTolerance;   /**< tolerance of stability */
    uint8_t cPointsOfCurve;   /**< points of the curve */
    float focalFilter[5];     /**< focal filter */
    float shapFilter[5];      /**< filter, five numbers; spelled "shapFilter" in both documents */
    uint16_t focalMax;        /**< greatest focal value; key "maxFocal" in the simulator document */
    uint16_t focalMin;        /**< least focal value; key "minFocal" in the simulator document */
    float cMotionThr;         /**< motion threshold; simulator key "cMotionThreshold" */
    float focalStableThr;     /**< threshold of a stable focal value; simulator key "focalStableThreshold" */
    float cMseTolerance;      /**< tolerance "cMse" */
    float cPdConfThr;         /**< threshold of the PD confidence; simulator key "cPdConfThreshold" */
    int32_t pdFocal[48];      /**< PD focal values, signed; simulator key "PdFocal" */
    int32_t pdDistance;       /**< PD distance, signed; simulator key "PdDistance" */
    float pdShiftThr;         /**< threshold of the PD shift; simulator key "PdShiftThreshold" */
    uint8_t pdStableCountMax; /**< upper limit of the PD stable count; simulator key "PdStablecountMax" */
    uint16_t mode;            /**< mode of the control */
    uint8_t pdRoiIdx;         /**< index of the PD region of interest */
    char class_[20];          /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseAutoFocus_3_t;
static_assert(sizeof(QvDatabaseAutoFocus_3_t) == 312, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoFocus_3_parse(QvJsonValue_t* pValue, QvDatabaseAutoFocus_3_t* pConfig);
/** Adds the members of the record to its object in a tuning document: 13 for null, else 0. A member that cannot be
    added is traced at Debug. */
QV_DATABASE_API int QvDatabaseAutoFocus_3_serialize(QvDatabaseAutoFocus_3_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoFocus_3_reset(QvDatabaseAutoFocus_3_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
