/** @file
 * The record of the lens shading correction block. The library stores it for the layers that drive the camera,
 * which read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_LENS_SHADING_CORRECTION_4_H
#define QV_DATABASE_C_DATABASE_LENS_SHADING_CORRECTION_4_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Lens shading correction in manual mode (category `LSC_4`, class "CLscv2" in the simulator document); `ALSC_4`
    holds the automatic parameters. The record holds one grid of 33 by 33 samples for each colour plane and owns no
    heap memory. In documents matrix is four lists of 1089 numbers. */
typedef struct QvDatabaseLensShadingCorrection_4 {
    bool enable; /**< switches the block on; a number, 1 or 0, in the simulator document */
    /** one grid of 33 by 33 samples for each colour plane: red, green at the red line, green at the blue line, blue;
        four lists of 1089 numbers in documents [map 33x33] */
    uint16_t matrix[4][1089];
    uint16_t xSize[32];  /**< 32 sector sizes of the grid along x; the list "LSC_SECT_SIZE_X" of calibration text */
    uint16_t ySize[32];  /**< 32 sector sizes of the grid along y; the list "LSC_SECT_SIZE_Y" of calibration text */
    bool overrideCaliEn; /**< calibration override, default true; no simulator document carries it */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseLensShadingCorrection_4_t;
static_assert(sizeof(QvDatabaseLensShadingCorrection_4_t) == 8864, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseLensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseLensShadingCorrection_4_t* pConfig);
/** Adds the members of the record to its object in a tuning document. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseLensShadingCorrection_4_serialize(QvDatabaseLensShadingCorrection_4_t* pConfig,
                                                                QvJsonValue_t* pValue);
/** Puts the defaults into the record: overrideCaliEn true, all else zero. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseLensShadingCorrection_4_reset(QvDatabaseLensShadingCorrection_4_t* pConfig);
/** Fills xSize and ySize from the lists "LSC_SECT_SIZE_X" and "LSC_SECT_SIZE_Y", and the planes of matrix from the
    lists "LSC_SAMPLES_red", "LSC_SAMPLES_greenAtRedLine", "LSC_SAMPLES_greenAtBlueLine" and "LSC_SAMPLES_blue", of
    the text of a calibration tool; no other field changes. For users of the library, which has no caller of its own.
    The text is what pBuffer holds from pBegin on; it must end in a zero byte, the buffer's offset is not looked at,
    and it stays the caller's. The numbers of a list are decimal and stand apart by white space alone; a number above
    65535 keeps its low 16 bits. A list ends at its first closing bracket. A short list leaves the elements behind it
    as they were, of a long one the surplus is dropped; neither is an error.
    0; 13 for null; 15 when a key or its brackets aren't found; else the status of the queue that carries the items.
    A failure is traced at Error and ends the reading: what was stored stays, the later lists are not tried. Where
    the search fails, the queue opened for it is not released, on purpose. */
QV_DATABASE_API int QvDatabaseLensShadingCorrection_4_parse2(QvCommonBuffer_t* pBuffer,
                                                             QvDatabaseLensShadingCorrection_4_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
