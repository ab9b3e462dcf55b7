/** @file
 * What all headers of the database build on: the handle, the parameters it is opened with, and the small value records
 * (gain, point, range, rectangle) with their codecs.
 *
 * The eight codecs of the value records test no argument: neither the record nor the JSON value may be null. They give
 * 0; a member that can't be read is traced at Debug and its field keeps its value, and so is a member that can't be
 * written.
 */
#ifndef QV_DATABASE_C_DATABASE_BASE_H
#define QV_DATABASE_C_DATABASE_BASE_H

#include <assert.h>
#include <stdint.h>

#include <qv_common_c/common_logger.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** An open database; 0 means no database. One thread at a time uses a handle. */
typedef uintptr_t QvDatabaseHandle_t;

/** What a database is opened with. The database keeps a copy of the record. */
typedef struct QvDatabaseOpenParam {
    /** Logger that is told of a query for a category that was never registered. It stays the caller's and must live as
        long as the database. */
    QvCommonLoggerHandle_t hLogger;
} QvDatabaseOpenParam_t;

/** Gains of the four raw channels. No category holds one; the record is there for users of the library. */
typedef struct QvDatabaseGain {
    float blue;      /**< gain of the blue pixels; in documents the bit pattern of the float */
    float greenBlue; /**< gain of the green pixels in the blue rows; in documents the bit pattern of the float */
    float greenRed;  /**< gain of the green pixels in the red rows; in documents the bit pattern of the float */
    float red;       /**< gain of the red pixels; in documents the bit pattern of the float */
} QvDatabaseGain_t;
static_assert(sizeof(QvDatabaseGain_t) == 16, "the layout is part of the interface");

/** Position of a rectangle, in pixels. */
typedef struct QvDatabasePoint {
    uint16_t x; /**< column; a signed number in tuning and meta documents, 65535 as -1 [px] */
    uint16_t y; /**< row; a signed number in tuning and meta documents, 65535 as -1 [px] */
} QvDatabasePoint_t;
static_assert(sizeof(QvDatabasePoint_t) == 4, "the layout is part of the interface");

/** Upper and lower limit of a value. No category holds one; the record is there for users of the library. */
typedef struct QvDatabaseRange {
    float max; /**< upper limit; in documents the bit pattern of the float */
    float min; /**< lower limit; in documents the bit pattern of the float, under the key "max" too */
} QvDatabaseRange_t;
static_assert(sizeof(QvDatabaseRange_t) == 8, "the layout is part of the interface");

/** Region of an image, in pixels. */
typedef struct QvDatabaseRectangle {
    uint16_t height;          /**< number of rows [px] */
    QvDatabasePoint_t offset; /**< upper left corner */
    uint16_t width;           /**< number of columns [px] */
} QvDatabaseRectangle_t;
static_assert(sizeof(QvDatabaseRectangle_t) == 8, "the layout is part of the interface");

/** Fills the gains from an object. Its numbers are the bit patterns of the floats: 1065353216 stands for a gain of 1.
 */
QV_DATABASE_API int QvDatabaseGain_parse(QvJsonValue_t* pValue, QvDatabaseGain_t* pConfig);
/** Adds the gains to an object, each as the unsigned integer with the bits of the float. */
QV_DATABASE_API int QvDatabaseGain_serialize(QvDatabaseGain_t* pConfig, QvJsonValue_t* pValue);

/** Fills the point from an object. A negative number is taken by its low 16 bits, so -1 reads as 65535. */
QV_DATABASE_API int QvDatabasePoint_parse(QvJsonValue_t* pValue, QvDatabasePoint_t* pConfig);
/** Adds the point to an object as signed numbers: a coordinate of 32768 or more comes out negative. */
QV_DATABASE_API int QvDatabasePoint_serialize(QvDatabasePoint_t* pConfig, QvJsonValue_t* pValue);

/** Fills the range from an object. Both fields read the member "max", as the bit pattern of a float, and so become
   equal; a member "min" is passed over. */
QV_DATABASE_API int QvDatabaseRange_parse(QvJsonValue_t* pValue, QvDatabaseRange_t* pConfig);
/** Adds both fields to an object under "max", the upper limit first, each as the unsigned integer with the bits of the
    float. */
QV_DATABASE_API int QvDatabaseRange_serialize(QvDatabaseRange_t* pConfig, QvJsonValue_t* pValue);

/** Fills the rectangle from an object. Where "offset" is missing, the offset keeps its value. */
QV_DATABASE_API int QvDatabaseRectangle_parse(QvJsonValue_t* pValue, QvDatabaseRectangle_t* pConfig);
/** Adds the rectangle to an object, "offset" as an object within it. */
QV_DATABASE_API int QvDatabaseRectangle_serialize(QvDatabaseRectangle_t* pConfig, QvJsonValue_t* pValue);

#ifdef __cplusplus
}
#endif

#endif
