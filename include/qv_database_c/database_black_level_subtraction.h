/** @file
 * The record of the black level subtraction block. The library stores it for the layers that drive the camera,
 * which read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_BLACK_LEVEL_SUBTRACTION_H
#define QV_DATABASE_C_DATABASE_BLACK_LEVEL_SUBTRACTION_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Black level subtraction in manual mode (category `BLS`, class "Bls" in the simulator document); `ABLS` holds the
    automatic parameters. The record has no switch and no class name. */
typedef struct QvDatabaseBlackLevelSubtraction {
    uint32_t bls[4];     /**< one black level for each of four colour channels */
    bool overrideCaliEn; /**< calibration override, default true; no simulator document carries it */
    uint8_t bitWidth;    /**< bit width, default 12 [bit] */

    bool isStatistics; /**< for the layers above; no text form carries it */
} QvDatabaseBlackLevelSubtraction_t;
static_assert(sizeof(QvDatabaseBlackLevelSubtraction_t) == 20, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseBlackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                          QvDatabaseBlackLevelSubtraction_t* pConfig);
/** Adds the members of the record to its object in a tuning document, overrideCaliEn first. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseBlackLevelSubtraction_serialize(QvDatabaseBlackLevelSubtraction_t* pConfig,
                                                              QvJsonValue_t* pValue);
/** Puts the defaults into the record: bitWidth 12, overrideCaliEn true, all else zero. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseBlackLevelSubtraction_reset(QvDatabaseBlackLevelSubtraction_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
