/** @file
 * The ISP controller of the simulator (category `ISP`).
 */
#ifndef QV_DATABASE_C_DATABASE_ISP_H
#define QV_DATABASE_C_DATABASE_ISP_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** ISP controller (category `ISP`), carried by simulator documents alone, as the object of class "IspController" in the
    list "root". QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseIsp {
    char class_[20]; /**< class name, "classname" in the simulator document; not terminated when it is full */
    bool enable;     /**< switches the controller on */
    uint32_t hwId;   /**< id of the hardware; in no document */
} QvDatabaseIsp_t;
static_assert(sizeof(QvDatabaseIsp_t) == 28, "the layout is part of the interface");

/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseIsp_reset(QvDatabaseIsp_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
