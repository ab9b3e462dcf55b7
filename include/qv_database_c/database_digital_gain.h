/** @file
 * The record of the digital gain block. The library stores it for the layers that drive the camera, which read it
 * in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_DIGITAL_GAIN_H
#define QV_DATABASE_C_DATABASE_DIGITAL_GAIN_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Digital gain of the four colour channels (category `DG`, class "CDgain" in the simulator document). A reset
    leaves the gains at 0, not at 1. */
typedef struct QvDatabaseDigitalGain {
    bool enable;         /**< switches the block on; a number, 1 or 0, in the simulator document */
    float digitalGainB;  /**< gain of blue */
    float digitalGainGb; /**< gain of the green pixels on the blue lines */
    float digitalGainGr; /**< gain of the green pixels on the red lines */
    float digitalGainR;  /**< gain of red */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseDigitalGain_t;
static_assert(sizeof(QvDatabaseDigitalGain_t) == 44, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDigitalGain_parse(QvJsonValue_t* pValue, QvDatabaseDigitalGain_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDigitalGain_serialize(QvDatabaseDigitalGain_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDigitalGain_reset(QvDatabaseDigitalGain_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
