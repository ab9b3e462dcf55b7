/** @file
 * The gain-scheduled strength of the colour correction matrix: the row type, the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_COLOR_CORRECTION_MATRIX_1_1_H
#define QV_DATABASE_C_DATABASE_AUTO_COLOR_CORRECTION_MATRIX_1_1_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One schedule of colour correction: 20 gain points and the parameters at each of them, index by index. */
typedef struct QvDatabaseAutoColorCorrectionMatrix_1_1_Table {
    float gains[20];    /**< gain points of the lists beside it, index by index [gain-axis] */
    float strength[20]; /**< strength of the correction */
    bool hdr;           /**< HDR flag of the schedule */
} QvDatabaseAutoColorCorrectionMatrix_1_1_Table_t;
static_assert(sizeof(QvDatabaseAutoColorCorrectionMatrix_1_1_Table_t) == 164, "the layout is part of the interface");

/** Automatic parameters of the colour correction matrix, category `ACCM_1_1`, the counterpart of `CCM_1_1`: up to 20
    schedules over the gain. The tuning document and the simulator document (class "Accm") carry it; which row is
    used and what holds between two gain points is up to the layers above. QvDatabase_reset() leaves this category
    alone. */
typedef struct QvDatabaseAutoColorCorrectionMatrix_1_1 {
    /** Switches the automatic mode of the block on. */
    bool enable;
    /** Damping of the automatic adjustment. */
    float damping;
    /** The schedules, array "tables" in documents, one object for each row in use; a written row holds all 20 gain
        points, a row that is read may hold fewer. */
    QvDatabaseAutoColorCorrectionMatrix_1_1_Table_t tables[20];
    /** Rows in use, at most 20. No member of its own: reading sets it to the length of "tables", 0 where there is
        none, and drops rows past the twentieth without a trace. Rows behind it keep their old contents.
        [0..20; count-of tables] */
    size_t tableNumber;
    /** Index of a row of `tables`, for the layers above; no text form carries it, reset makes it 0. [0..19] */
    size_t tableIdx;
    /** Class name in the simulator document; not terminated when it is full. */
    char class_[20];
} QvDatabaseAutoColorCorrectionMatrix_1_1_t;
static_assert(sizeof(QvDatabaseAutoColorCorrectionMatrix_1_1_t) == 3328, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member, in a row or beside them, is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoColorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig);
/** Adds the members and the `tableNumber` rows in use to the object of a tuning document: 13 for null, else 0, or
    the status of a list or row that could not be created or attached (traced at Error; what was added stays). */
QV_DATABASE_API int
QvDatabaseAutoColorCorrectionMatrix_1_1_serialize(QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig,
                                                  QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no row in use, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoColorCorrectionMatrix_1_1_reset(QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
