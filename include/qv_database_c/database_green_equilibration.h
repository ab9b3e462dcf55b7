/** @file
 * The record of the green equilibration block. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_GREEN_EQUILIBRATION_H
#define QV_DATABASE_C_DATABASE_GREEN_EQUILIBRATION_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Green equilibration in manual mode (category `GE`, class "CGreenEqu" in the simulator document); `AGE` holds the
    automatic parameters. */
typedef struct QvDatabaseGreenEquilibration {
    bool enable;     /**< switches the block on; a number, 1 or 0, in the simulator document */
    float threshold; /**< threshold of the equilibration */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseGreenEquilibration_t;
static_assert(sizeof(QvDatabaseGreenEquilibration_t) == 32, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseGreenEquilibration_parse(QvJsonValue_t* pValue, QvDatabaseGreenEquilibration_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseGreenEquilibration_serialize(QvDatabaseGreenEquilibration_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseGreenEquilibration_reset(QvDatabaseGreenEquilibration_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
