/** @file
 * The gain-scheduled parameters of 3D noise reduction: the row type, the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_3D_NOISE_REDUCTION_2_1_H
#define QV_DATABASE_C_DATABASE_AUTO_3D_NOISE_REDUCTION_2_1_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One schedule of 3D noise reduction: 20 gain points and the parameters at each of them, index by index. */
typedef struct QvDatabaseAuto3DNoiseReduction_2_1_Table {
    float gains[20];                    /**< gain points of the lists beside it, index by index [gain-axis] */
    uint8_t strength[20];               /**< denoising strength */
    int32_t motionInv[20];              /**< motion parameter Inv; the only signed member */
    uint16_t delta[20];                 /**< parameter delta */
    uint8_t motionDilateEn[20];         /**< switches motion dilation on; a number here, a bool in `3DNR_2_1` */
    uint16_t updateTemporal[20];        /**< temporal update */
    uint16_t strengthCurveTemporal[20]; /**< strength of the temporal curve */
    uint16_t temporalCurve[20][17];     /**< 17 points of the temporal curve for each gain point [curve] */
    uint8_t rangeT[20];                 /**< range parameter T */
    bool hdr;                           /**< HDR flag of the schedule; carried by the simulator document only */
} QvDatabaseAuto3DNoiseReduction_2_1_Table_t;
static_assert(sizeof(QvDatabaseAuto3DNoiseReduction_2_1_Table_t) == 1024, "the layout is part of the interface");

/** Automatic parameters of 3D noise reduction, category `A3DNR_2_1`, the counterpart of `3DNR_2_1`: up to 20
    schedules over the gain. The tuning document and the simulator document (class "A3dnrv1") carry it; which row is
    used and what holds between two gain points is up to the layers above. The two counters stand in the reverse of
    the usual order, which the binary image depends on. */
typedef struct QvDatabaseAuto3DNoiseReduction_2_1 {
    /** Switches the automatic mode of the block on. */
    bool enable;
    /** The schedules, array "tables" in documents, one object for each row in use; a written row holds all 20 gain
        points, a row that is read may hold fewer. */
    QvDatabaseAuto3DNoiseReduction_2_1_Table_t tables[20];
    /** Index of a row of `tables`, for the layers above; no text form carries it, reset makes it 0. [0..19] */
    size_t tableIdx;
    /** Rows in use, at most 20. No member of its own: reading sets it to the length of "tables", 0 where there is
        none, and drops rows past the twentieth without a trace. Rows behind it keep their old contents.
        [0..20; count-of tables] */
    size_t tableNumber;
    /** Class name in the simulator document; not terminated when it is full. */
    char class_[20];
} QvDatabaseAuto3DNoiseReduction_2_1_t;
static_assert(sizeof(QvDatabaseAuto3DNoiseReduction_2_1_t) == 20528, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member, in a row or beside them, is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAuto3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig);
/** Adds the members and the `tableNumber` rows in use to the object of a tuning document: 13 for null, else 0, or
    the status of a list or row that could not be created or attached (traced at Error; what was added stays). */
QV_DATABASE_API int QvDatabaseAuto3DNoiseReduction_2_1_serialize(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig,
                                                                 QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no row in use, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAuto3DNoiseReduction_2_1_reset(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
