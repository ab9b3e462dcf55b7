/** @file
 * Identity of the ISP core, version of the documents and two switches (category `MISC`).
 *
 * A text that fills its field has no terminator, and writing it to a document runs on into the fields behind it.
 */
#ifndef QV_DATABASE_C_DATABASE_MISC_H
#define QV_DATABASE_C_DATABASE_MISC_H

#include <assert.h>
#include <stdbool.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** System data (category `MISC`), carried by tuning documents and the binary image; a simulator document carries the
    two switches nrReloc and dpccRawEnable. The object "version" of every text document belongs to this record too.
    QvDatabase_reset puts the defaults back. */
typedef struct QvDatabaseMisc {
    char ispVersion[40];    /**< name of the ISP core; default "QVP1200L_V2407" */
    bool nrReloc;           /**< switch; simulator key "nr_reloc", from which `MD` takes its own too */
    bool isPipeline;        /**< pipeline flag; in no text form */
    bool dpccRawEnable;     /**< switch of the raw defect pixel correction */
    char versionNumber[20]; /**< document version; default "6.8.25.2"; that of a loaded "version" replaces it */
    char exportDate[20];    /**< time of the last save as JSON; in "version", written and never read */
} QvDatabaseMisc_t;
static_assert(sizeof(QvDatabaseMisc_t) == 83, "the layout is part of the interface");

/** Fills ispVersion, nrReloc and dpccRawEnable from the record's object in a tuning document. 0, or 13 where an
    argument is null; a missing member is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseMisc_parse(QvJsonValue_t* pValue, QvDatabaseMisc_t* pConfig);

/** Adds the same three members to the record's object in a tuning document. 0, or 13 where an argument is null. */
QV_DATABASE_API int QvDatabaseMisc_serialize(QvDatabaseMisc_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseMisc_reset(QvDatabaseMisc_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
