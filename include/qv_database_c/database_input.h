/** @file
 * How frames enter the pipeline (category `IPT`).
 *
 * The numbers of formats, Bayer patterns and stitching modes are those of the pipeline that uses the record; the
 * library only stores them.
 */
#ifndef QV_DATABASE_C_DATABASE_INPUT_H
#define QV_DATABASE_C_DATABASE_INPUT_H

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

/** Where frames come from. */
typedef enum QvDatabaseInputType {
    QvDatabaseInputType_Rdma = 0,     /**< RDMA */
    QvDatabaseInputType_ReTiming = 1, /**< retiming */
    QvDatabaseInputType_Sensor = 2,   /**< sensor */
    QvDatabaseInputType_Sum = 3,      /**< number of input types and so of paths */
} QvDatabaseInputType_t;

/** One input path. */
typedef struct QvDatabaseInputPath {
    uint16_t bayerPattern;           /**< Bayer pattern, numbered by the pipeline */
    size_t bufferLength;             /**< length of a buffer; in no text form */
    bool enable;                     /**< path is in use; default true, true, false for paths 0, 1, 2 */
    uint16_t format;                 /**< pipeline's format number */
    int16_t formatExt;               /**< extended format, default -1; in tuning documents written unsigned, 65535 */
    QvDatabaseRectangle_t rectangle; /**< region of the image, pixels; default 1920 x 1080 at 0, 0 [window] */
    uint16_t stitchingMode;          /**< stitching mode, numbered by the pipeline */
    bool isInitialized;              /**< path has been set up; in no text form */
} QvDatabaseInputPath_t;
static_assert(sizeof(QvDatabaseInputPath_t) == 40, "the layout is part of the interface");

/** Input configuration (category `IPT`), carried by tuning documents, initialization files and the binary image.
    QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseInput {
    /** input frame rate, default 2; written to initialization files without fraction [1/s] */
    float framerate;
    /** frames are injected live; default true */
    bool isInjectLive;
    /** one for each input type */
    QvDatabaseInputPath_t paths[3];
    /** source in use, default the sensor, not checked; not in initialization files */
    QvDatabaseInputType_t type;
    /** frames are injected; in no text form */
    bool isInject;
    /** metadata is injected; in no text form */
    bool isInjectMeta;
    /** index of a path; in no text form [0..2] */
    size_t pathIndex;
    /** input is raw; in no text form */
    bool isRaw;
    /** input is raw HDR; in no text form */
    bool isRawHdr;
    /** input is a stream; in no text form */
    bool isStream;
} QvDatabaseInput_t;
static_assert(sizeof(QvDatabaseInput_t) == 152, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. 0; 13 where an argument is null; the status of a path that
    fails. A missing member is traced at Debug and its field keeps its value; all three paths are asked for, whatever
    the length of "paths". */
QV_DATABASE_API int QvDatabaseInput_parse(QvJsonValue_t* pValue, QvDatabaseInput_t* pConfig);

/** Adds the members of the record to its object in a tuning document, always three paths. 0; 13 where an argument is
    null; the status of a path that fails. */
QV_DATABASE_API int QvDatabaseInput_serialize(QvDatabaseInput_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseInput_reset(QvDatabaseInput_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
