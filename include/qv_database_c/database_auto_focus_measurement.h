/** @file
 * The focus measurement: its settings, the measured values and the functions of the record.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_FOCUS_MEASUREMENT_H
#define QV_DATABASE_C_DATABASE_AUTO_FOCUS_MEASUREMENT_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Settings and measured values of the focus measurement, category `AFM`. The tuning document and the "driver" list
    of the simulator document (class "Afmv1") carry `enable`, `id`, `threshold` and `window`. No text form carries
    the nine measured values, so no document changes them; they are in the binary image. */
typedef struct QvDatabaseAutoFocusMeasurement {
    bool enable; /**< switches the focus measurement on */

    uint32_t sharpnessA; /**< measured sharpness, A; in no text form [measured] */
    uint32_t sharpnessB; /**< measured sharpness, B; in no text form [measured] */
    uint32_t sharpnessC; /**< measured sharpness, C; in no text form [measured] */
    uint32_t luminanceA; /**< measured luminance, A; in no text form [measured] */
    uint32_t luminanceB; /**< measured luminance, B; in no text form [measured] */
    uint32_t luminanceC; /**< measured luminance, C; in no text form [measured] */
    uint32_t pixelCntA;  /**< measured count of pixels, A; in no text form [measured] */
    uint32_t pixelCntB;  /**< measured count of pixels, B; in no text form [measured] */
    uint32_t pixelCntC;  /**< measured count of pixels, C; in no text form [measured] */

    uint16_t id;        /**< number of the window; key "afmWindowId" in the simulator document */
    uint16_t window[4]; /**< the window, four numbers; key "afmWindow" in the simulator document [window] */
    uint32_t threshold; /**< threshold of the measurement */
    char class_[20];    /**< unused here: in no text form, the simulator document included */
} QvDatabaseAutoFocusMeasurement_t;
static_assert(sizeof(QvDatabaseAutoFocusMeasurement_t) == 76, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member is traced at Debug and its field keeps its value. The measured values are left alone. */
QV_DATABASE_API int QvDatabaseAutoFocusMeasurement_parse(QvJsonValue_t* pValue,
                                                         QvDatabaseAutoFocusMeasurement_t* pConfig);
/** Adds "enable", "id", "threshold" and "window" to the object in a tuning document: 13 for null, else 0. A member
    that cannot be added is traced at Debug. */
QV_DATABASE_API int QvDatabaseAutoFocusMeasurement_serialize(QvDatabaseAutoFocusMeasurement_t* pConfig,
                                                             QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, the measured values too. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoFocusMeasurement_reset(QvDatabaseAutoFocusMeasurement_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
