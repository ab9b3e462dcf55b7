/** @file
 * The record of the histogram block with 32 bins. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_HISTOGRAM_H
#define QV_DATABASE_C_DATABASE_HISTOGRAM_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Histogram: the settings, and the results of 32 bins beside them (category `HTG`, class "Hist64" in the simulator
    document). The documents carry the settings alone. QvDatabase_reset leaves this record as it is. */
typedef struct QvDatabaseHistogram {
    bool enable;        /**< switches the block on */
    uint16_t mode;      /**< mode of the histogram */
    uint16_t channel;   /**< channel of the histogram */
    uint16_t window[4]; /**< measuring window, four numbers [window] */
    float rCoeff;       /**< coefficient of red; key "rcoff" in the simulator document */
    float gCoeff;       /**< coefficient of green; key "gcoff" in the simulator document */
    float bCoeff;       /**< coefficient of blue; key "bcoff" in the simulator document */
    uint32_t bin[32];   /**< results of the 32 bins; only _statistics brings them into a document [measured] */
    char class_[20];    /**< class name; no text form carries it */
} QvDatabaseHistogram_t;
static_assert(sizeof(QvDatabaseHistogram_t) == 176, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseHistogram_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseHistogram_serialize(QvDatabaseHistogram_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseHistogram_reset(QvDatabaseHistogram_t* pConfig);
/** Adds the results to the object pValue, which stays the caller's: a list of 32 numbers under "bin". For users of
    the library, which has no caller of its own. 0, or 13 for null; where the list can't be written that is traced at
    Debug and the answer is 0 all the same. */
QV_DATABASE_API int QvDatabaseHistogram_statistics(QvDatabaseHistogram_t* pConfig, QvJsonValue_t* pValue);

#ifdef __cplusplus
}
#endif

#endif
