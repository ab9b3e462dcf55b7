/** @file
 * The record of the colour correction matrix block. The library stores it for the layers that drive the camera,
 * which read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_COLOR_CORRECTION_MATRIX_1_1_H
#define QV_DATABASE_C_DATABASE_COLOR_CORRECTION_MATRIX_1_1_H

#include <assert.h>
#include <stdbool.h>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Colour correction matrix in manual mode (category `CCM_1_1`, class "CCcm" in the simulator document); `ACCM_1_1`
    holds the automatic parameters. A reset leaves the matrix all zero; it does not set the identity. */
typedef struct QvDatabaseColorCorrectionMatrix_1_1 {
    bool enable;         /**< switches the block on; a number, 1 or 0, in the simulator document */
    float ccMatrix[9];   /**< matrix of 3 by 3, row after row; the list "ctm" of calibration text [matrix 3x3] */
    float ccOffset[3];   /**< three offsets; the list "successional_color_offset" of calibration text [matrix 1x3] */
    bool overrideCaliEn; /**< calibration override, default true; no simulator document carries it */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseColorCorrectionMatrix_1_1_t;
static_assert(sizeof(QvDatabaseColorCorrectionMatrix_1_1_t) == 76, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseColorCorrectionMatrix_1_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorCorrectionMatrix_1_1_serialize(QvDatabaseColorCorrectionMatrix_1_1_t* pConfig,
                                                                  QvJsonValue_t* pValue);
/** Puts the defaults into the record: overrideCaliEn true, all else zero. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseColorCorrectionMatrix_1_1_reset(QvDatabaseColorCorrectionMatrix_1_1_t* pConfig);
/** Fills ccMatrix from the list "ctm" and ccOffset from the list "successional_color_offset" of the text of a
    calibration tool; no other field changes. For users of the library, which has no caller of its own.
    The text is what pBuffer holds from pBegin on; it must end in a zero byte, the buffer's offset is not looked at,
    and it stays the caller's. The numbers of a list stand apart by white space alone. A short list leaves the
    elements behind it as they were, of a long one the surplus is dropped; neither is an error.
    0; 13 for null; 15 when a key or its brackets aren't found; else the status of the queue that carries the items.
    A failure is traced at Error and ends the reading: what was stored stays, the second list is not tried. Where the
    search fails, the queue opened for it is not released, on purpose. */
QV_DATABASE_API int QvDatabaseColorCorrectionMatrix_1_1_parse2(QvCommonBuffer_t* pBuffer,
                                                               QvDatabaseColorCorrectionMatrix_1_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
