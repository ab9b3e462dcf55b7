/** @file
 * The automatic mode of defect pixel cluster correction: the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_DEFECT_PIXEL_CLUSTER_CORRECTION_H
#define QV_DATABASE_C_DATABASE_AUTO_DEFECT_PIXEL_CLUSTER_CORRECTION_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Automatic mode of defect pixel cluster correction, category `ADPCC`, the counterpart of `DPCC`. The tuning
    document and the simulator document (class "ADpcc") carry it. It has the two counters of the gain-scheduled
    records, but no schedules. */
typedef struct QvDatabaseAutoDefectPixelClusterCorrection {
    bool enable;            /**< switches the automatic mode of the block on */
    uint8_t autoModeSelect; /**< selects the automatic mode */
    size_t tableNumber;     /**< unused, since there are no rows; in no text form, 0 after a reset */
    size_t tableIdx;        /**< unused as well; in no text form, 0 after a reset */
    char class_[20];        /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseAutoDefectPixelClusterCorrection_t;
static_assert(sizeof(QvDatabaseAutoDefectPixelClusterCorrection_t) == 48, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int
QvDatabaseAutoDefectPixelClusterCorrection_parse(QvJsonValue_t* pValue,
                                                 QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig);
/** Adds the members of the record to its object in a tuning document: 13 for null, else 0. A member that cannot be
    added is traced at Debug. */
QV_DATABASE_API int
QvDatabaseAutoDefectPixelClusterCorrection_serialize(QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig,
                                                     QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no class name. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseAutoDefectPixelClusterCorrection_reset(QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
