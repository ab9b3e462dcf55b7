/** @file
 * The record of the exposure that is set by hand. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_EXPOSURE_CONTROL_2_H
#define QV_DATABASE_C_DATABASE_EXPOSURE_CONTROL_2_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The gains of an exposure; an object of its own in the tuning document. */
typedef struct QvDatabaseExposureControl_2_Gain {
    float analog[4];  /**< four analog gains, default 1.0 each */
    float digital[4]; /**< four digital gains, default 1.0 each */
} QvDatabaseExposureControl_2_Gain_t;
static_assert(sizeof(QvDatabaseExposureControl_2_Gain_t) == 32, "the layout is part of the interface");

/** Exposure control in manual mode (category `EC_2`); `AE_3` is the automatic control. The simulator document
    doesn't carry this category, and QvDatabase_reset leaves the record as it is. */
typedef struct QvDatabaseExposureControl_2 {
    QvDatabaseExposureControl_2_Gain_t gain; /**< the gains, the object "gain" in the tuning document */
    float integrationTime[4];                /**< four integration times, default 100000.0 each */
    float totalGain;                         /**< total gain; no text form carries it */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name; no text form carries it */
    bool isParse;      /**< true once _parse has begun, false after a reset; no text form carries it */
} QvDatabaseExposureControl_2_t;
static_assert(sizeof(QvDatabaseExposureControl_2_t) == 76, "the layout is part of the interface");

/** Sets isParse, then fills the record from its object in a tuning document; a field whose member is missing (traced
    at Debug) keeps its value, and isParse is set even if all are. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseExposureControl_2_parse(QvJsonValue_t* pValue, QvDatabaseExposureControl_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document, the gains as an object within it. 0, or 13 for
    null. */
QV_DATABASE_API int QvDatabaseExposureControl_2_serialize(QvDatabaseExposureControl_2_t* pConfig,
                                                          QvJsonValue_t* pValue);
/** Puts the defaults into the record: gains 1.0, integration times 100000.0, all else zero. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseExposureControl_2_reset(QvDatabaseExposureControl_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
