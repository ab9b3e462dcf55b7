/** @file
 * The exposure statistics: their region, the measured data and the functions of the record.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_EXPOSURE_STATISTICS_2_H
#define QV_DATABASE_C_DATABASE_AUTO_EXPOSURE_STATISTICS_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The measured data of the exposure statistics. */
typedef struct QvDatabaseAutoExposureStatistics_2_Statistics {
    uint32_t data[4096]; /**< measured values [measured] */
    uint16_t type;       /**< kind of the measured values [measured] */
} QvDatabaseAutoExposureStatistics_2_Statistics_t;
static_assert(sizeof(QvDatabaseAutoExposureStatistics_2_Statistics_t) == 16388, "the layout is part of the interface");

/** Settings and measured data of the exposure statistics, category `AES_2`. The simulator document carries the
    settings in its "driver" list (class "ExpV2"). The category is read from a tuning document, but saving one leaves
    it out. The record has no class name. */
typedef struct QvDatabaseAutoExposureStatistics_2 {
    /** Switches the exposure statistics on. */
    bool enable;
    /** Switches custom windows on. */
    bool windowSetCustomEnable;
    /** Selects the input of the statistics. */
    uint16_t inputSelect;
    /** Region of the statistics. A tuning document holds it as the object "rectangle"; where that is missing, the
        field keeps its value. The simulator document holds it as the list "windows" of x offset, y offset, width and
        height; what is missing there becomes 0. [window] */
    QvDatabaseRectangle_t rectangle;
    /** The measured data; no document carries it, it leaves the record through
        QvDatabaseAutoExposureStatistics_2_statistics() and in the binary image. [measured] */
    QvDatabaseAutoExposureStatistics_2_Statistics_t statistics;
} QvDatabaseAutoExposureStatistics_2_t;
static_assert(sizeof(QvDatabaseAutoExposureStatistics_2_t) == 16400, "the layout is part of the interface");

/** Reads `enable`, `windowSetCustomEnable`, `inputSelect` and `rectangle` from the object in a tuning document by
    the conventions in qv_database.h: 13 for null, else 0, or the status of the rectangle's reader (traced at Error).
    A missing member is traced at Debug and its field keeps its value; without "rectangle" that goes for each of its
    members. */
QV_DATABASE_API int QvDatabaseAutoExposureStatistics_2_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseAutoExposureStatistics_2_t* pConfig);
/** Adds the same four to an object: 13 for null, else 0, or the status of the rectangle's writer (traced at Error).
    Saving a tuning document does not call it. */
QV_DATABASE_API int QvDatabaseAutoExposureStatistics_2_serialize(QvDatabaseAutoExposureStatistics_2_t* pConfig,
                                                                 QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, the measured data too. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoExposureStatistics_2_reset(QvDatabaseAutoExposureStatistics_2_t* pConfig);
/** Adds the measured data to the object `pValue`: "data", a list of all 4096 values, and "type". 13 for null, else
    0; a member that cannot be added is traced at Debug. `pConfig` is only read. For the layers above, the library
    never calls it. */
QV_DATABASE_API int QvDatabaseAutoExposureStatistics_2_statistics(QvDatabaseAutoExposureStatistics_2_t* pConfig,
                                                                  QvJsonValue_t* pValue);

#ifdef __cplusplus
}
#endif

#endif
