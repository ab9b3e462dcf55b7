/** @file
 * The control parameters of automatic white balance: the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_WHITE_BALANCE_3_H
#define QV_DATABASE_C_DATABASE_AUTO_WHITE_BALANCE_3_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Control parameters of automatic white balance, category `AWB_3`. A flat record without schedules, which the
    tuning document and the simulator document (class "Awbv2") carry; the white balance control above the library
    works with it. */
typedef struct QvDatabaseAutoWhiteBalance_3 {
    bool enable;            /**< switches automatic white balance on */
    bool useDamping;        /**< switches damping on */
    uint8_t roiNum;         /**< regions of interest in use; simulator key "roiNumber" [0..25; count-of roiWindow] */
    float roiWeight;        /**< weight of the regions of interest */
    float roiWindow[25][5]; /**< regions, five numbers each; all 25 are written whatever `roiNum` is [window] */
    uint16_t mode;          /**< mode of the control */
    float awbTemWeight[7];  /**< weights Tem; in no text form */
    char class_[20];        /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseAutoWhiteBalance_3_t;
static_assert(sizeof(QvDatabaseAutoWhiteBalance_3_t) == 560, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoWhiteBalance_3_parse(QvJsonValue_t* pValue, QvDatabaseAutoWhiteBalance_3_t* pConfig);
/** Adds the members of the record to its object in a tuning document: 13 for null, else 0. A member that cannot be
    added is traced at Debug. */
QV_DATABASE_API int QvDatabaseAutoWhiteBalance_3_serialize(QvDatabaseAutoWhiteBalance_3_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoWhiteBalance_3_reset(QvDatabaseAutoWhiteBalance_3_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
