/** @file
 * The record of the focus that is set by hand. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_FOCUS_CONTROL_H
#define QV_DATABASE_C_DATABASE_FOCUS_CONTROL_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Focus control in manual mode (category `FC`); `AF_3` is the automatic control. The simulator document doesn't
    carry this category, and QvDatabase_reset leaves the record as it is. */
typedef struct QvDatabaseFocusControl {
    bool enable;       /**< switches focus control on */
    uint16_t mode;     /**< mode of the focus */
    uint32_t position; /**< position of the focus */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name; no text form carries it */
} QvDatabaseFocusControl_t;
static_assert(sizeof(QvDatabaseFocusControl_t) == 32, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseFocusControl_parse(QvJsonValue_t* pValue, QvDatabaseFocusControl_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseFocusControl_serialize(QvDatabaseFocusControl_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseFocusControl_reset(QvDatabaseFocusControl_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
