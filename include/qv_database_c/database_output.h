/** @file
 * How frames leave the pipeline (category `OPT`).
 *
 * The numbers of formats, bits and Bayer patterns are those of the pipeline that uses the record; the library only
 * stores them.
 */
#ifndef QV_DATABASE_C_DATABASE_OUTPUT_H
#define QV_DATABASE_C_DATABASE_OUTPUT_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What an output path delivers; also the index of the path. */
typedef enum QvDatabaseOutputType {
    QvDatabaseOutputType_Main = 0,     /**< main path */
    QvDatabaseOutputType_MetaData = 1, /**< metadata */
    QvDatabaseOutputType_Raw = 2,      /**< raw frames */
    QvDatabaseOutputType_RawHdr = 3,   /**< raw HDR frames */
    QvDatabaseOutputType_Self = 4,     /**< self path */
    QvDatabaseOutputType_Self2 = 5,    /**< second self path */
    QvDatabaseOutputType_Sum = 6,      /**< number of output types and so of paths */
} QvDatabaseOutputType_t;

/** One output path. */
typedef struct QvDatabaseOutputPath {
    uint16_t bayerPattern;               /**< Bayer pattern, numbered by the pipeline */
    uint16_t bitsIndex;                  /**< index of the bits, numbered by the pipeline */
    size_t bufferLength;                 /**< length of a buffer; in no text form */
    bool isCrop;                         /**< frames are cropped */
    QvDatabaseRectangle_t cropRectangle; /**< region to crop to, pixels; default empty [window] */
    bool enable;                         /**< path is in use; default true for paths 0 to 3, false for 4 and 5 */
    uint16_t format;                     /**< pipeline's format number; default 3, 0, 17, 17, 5, 5 for paths 0 to 5 */
    QvDatabaseRectangle_t rectangle;     /**< image region, pixels; default 1920 x 1080, empty for path 1 [window] */
    uint32_t formatV4l2;                 /**< pixel format as V4L2 numbers it; in no text form */
    bool isInitialized;                  /**< path has been set up; in no text form */
} QvDatabaseOutputPath_t;
static_assert(sizeof(QvDatabaseOutputPath_t) == 48, "the layout is part of the interface");

/** Output configuration (category `OPT`), carried by tuning documents, initialization files and the binary image.
    QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseOutput {
    QvDatabaseOutputPath_t paths[6]; /**< one for each output type */
    size_t snapshotNumber;           /**< number of snapshots; not in initialization files */
    size_t pathIndex;                /**< index of a path; in no text form [0..5; QvDatabaseOutputType_t] */
} QvDatabaseOutput_t;
static_assert(sizeof(QvDatabaseOutput_t) == 304, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. 0; 13 where an argument is null; the status of a path that
    fails. A missing member is traced at Debug and its field keeps its value; all six paths are asked for, whatever the
    length of "paths". */
QV_DATABASE_API int QvDatabaseOutput_parse(QvJsonValue_t* pValue, QvDatabaseOutput_t* pConfig);

/** Adds the members of the record to its object in a tuning document, always six paths. 0; 13 where an argument is
    null; the status of a path that fails. */
QV_DATABASE_API int QvDatabaseOutput_serialize(QvDatabaseOutput_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseOutput_reset(QvDatabaseOutput_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
