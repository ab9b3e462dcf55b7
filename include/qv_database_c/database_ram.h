/** @file
 * Objects of the running system (category `RAM`).
 */
#ifndef QV_DATABASE_C_DATABASE_RAM_H
#define QV_DATABASE_C_DATABASE_RAM_H

#include <assert.h>

#include <qv_common_c/common_buffer_queue.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Objects that live while the database is open (category `RAM`). No file carries them, and QvDatabase_reset leaves
    them alone. */
typedef struct QvDatabaseRam {
    /** queue of file buffers; open puts it there, close releases it; the library puts nothing in it
        [handle] */
    QvCommonBufferQueueHandle_t hBufferQueueFile;
    /** JSON value of a sensor query, null at first; owned by who stores it, close leaves it alone */
    QvJsonValue_t* pJSensorQuery;
} QvDatabaseRam_t;
static_assert(sizeof(QvDatabaseRam_t) == 16, "the layout is part of the interface");

/** Closes the queue and deletes the JSON value, where they are set. 0; 13 for null; the status of the step that failed:
    where the queue can't be closed, the JSON value is left alone. */
QV_DATABASE_API int QvDatabaseRam_reset(QvDatabaseRam_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
