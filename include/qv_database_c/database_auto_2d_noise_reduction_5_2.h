/** @file
 * The gain-scheduled parameters of 2D noise reduction: the row type, the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_2D_NOISE_REDUCTION_5_2_H
#define QV_DATABASE_C_DATABASE_AUTO_2D_NOISE_REDUCTION_5_2_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One schedule of 2D noise reduction: 20 gain points and the parameters at each of them, index by index. */
typedef struct QvDatabaseAuto2DNoiseReduction_5_2_Table {
    float gain[20];               /**< gain points of the lists beside it; simulator key "gains" [gain-axis] */
    float sigma[20];              /**< denoising sigma */
    uint8_t strength[20];         /**< denoising strength */
    uint8_t preGammaStrength[20]; /**< pre-gamma strength; in no text form, though `2DNR_5_2` has it in both */
    uint16_t lumaCurveX[20][12];  /**< 12 x points of the luma curve for each gain point [curve-x lumaCurveY] */
    uint16_t lumaCurveY[20][12];  /**< 12 y points of the luma curve for each gain point [curve-y lumaCurveX] */
    bool hdr;                     /**< HDR flag of the schedule; carried by the simulator document only */
} QvDatabaseAuto2DNoiseReduction_5_2_Table_t;
static_assert(sizeof(QvDatabaseAuto2DNoiseReduction_5_2_Table_t) == 1164, "the layout is part of the interface");

/** Automatic parameters of 2D noise reduction, category `A2DNR_5_2`, the counterpart of `2DNR_5_2`: up to 20
    schedules over the gain. The tuning document and the simulator document (class "A2dnrv5_1") carry it; which row
    is used and what holds between two gain points is up to the layers above. The two counters stand in the reverse
    of the usual order, which the binary image depends on. */
typedef struct QvDatabaseAuto2DNoiseReduction_5_2 {
    /** Switches the automatic mode of the block on. */
    bool enable;
    /** The schedules, array "tables" in documents, one object for each row in use; a written row holds all 20 gain
        points, a row that is read may hold fewer. */
    QvDatabaseAuto2DNoiseReduction_5_2_Table_t tables[20];
    /** Index of a row of `tables`, for the layers above; no text form carries it, reset makes it 0. [0..19] */
    size_t tableIdx;
    /** Rows in use, at most 20. No member of its own: reading sets it to the length of "tables", 0 where there is
        none, and drops rows past the twentieth without a trace. Rows behind it keep their old contents.
        [0..20; count-of tables] */
    size_t tableNumber;
    /** Class name in the simulator document; not terminated when it is full. */
    char class_[20];
} QvDatabaseAuto2DNoiseReduction_5_2_t;
static_assert(sizeof(QvDatabaseAuto2DNoiseReduction_5_2_t) == 23328, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member, in a row or beside them, is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAuto2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig);
/** Adds the members and the `tableNumber` rows in use to the object of a tuning document: 13 for null, else 0, or
    the status of a list or row that could not be created or attached (traced at Error; what was added stays). */
QV_DATABASE_API int QvDatabaseAuto2DNoiseReduction_5_2_serialize(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig,
                                                                 QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no row in use, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAuto2DNoiseReduction_5_2_reset(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
