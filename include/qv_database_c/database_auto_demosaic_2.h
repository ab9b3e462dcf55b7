/** @file
 * The gain-scheduled parameters of demosaicing, sharpening and de-purple: the row type, the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_DEMOSAIC_2_H
#define QV_DATABASE_C_DATABASE_AUTO_DEMOSAIC_2_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One schedule of the demosaic block: 20 gain points and the parameters at each of them, index by index. */
typedef struct QvDatabaseAutoDeMosaic_2_Table {
    float gains[20];                     /**< gain points of the lists beside it, index by index [gain-axis] */
    bool dmscSharpenEnable[20];          /**< switches sharpening on; true and false in documents */
    bool dmscDePurpleEnable[20];         /**< switches de-purple on; true and false in documents */
    uint16_t dmscSharpenFactorBlack[20]; /**< sharpening factor, black side */
    uint16_t dmscSharpenFactorWhite[20]; /**< sharpening factor, white side */
    uint16_t dmscSharpenClipBlack[20];   /**< clip of the sharpening, black side */
    uint16_t dmscSharpenClipWhite[20];   /**< clip of the sharpening, white side */
    uint16_t dmscSharpenT1[20];          /**< sharpening parameter T1 */
    uint8_t dmscSharpenT2Shift[20];      /**< sharpening parameter T2 shift */
    uint16_t dmscSharpenT3[20];          /**< sharpening parameter T3 */
    uint8_t dmscSharpenT4Shift[20];      /**< sharpening parameter T4 shift */
    uint8_t dmscDenoiseStrength[20];     /**< denoising strength */
    uint8_t dmscSharpenSize[20];         /**< sharpening size */
    uint16_t dmscSharpenR1[20];          /**< sharpening parameter R1 */
    uint16_t dmscSharpenR2[20];          /**< sharpening parameter R2 */
    uint16_t dmscSharpenR3[20];          /**< sharpening parameter R3 */
    uint8_t dmscDepurpleSatShrink[20];   /**< saturation shrink of de-purple */
    uint8_t dmscDepurpleCbcrMode[20];    /**< Cb/Cr mode of de-purple */
    uint8_t dmscDepurpleThr[20];         /**< threshold of de-purple */
    bool hdr;                            /**< HDR flag of the schedule; carried by the simulator document only */
} QvDatabaseAutoDeMosaic_2_Table_t;
static_assert(sizeof(QvDatabaseAutoDeMosaic_2_Table_t) == 624, "the layout is part of the interface");

/** Automatic parameters of the demosaic block, category `ADMSC_2`, the counterpart of `DMSC_2`: up to 20 schedules
    over the gain. The tuning document and the simulator document (class "ADmscv2") carry it; which row is used and
    what holds between two gain points is up to the layers above. */
typedef struct QvDatabaseAutoDeMosaic_2 {
    /** Switches the automatic mode of the block on. */
    bool enable;
    /** The schedules, array "tables" in documents, one object for each row in use; a written row holds all 20 gain
        points, a row that is read may hold fewer. */
    QvDatabaseAutoDeMosaic_2_Table_t tables[20];
    /** Rows in use, at most 20. No member of its own: reading sets it to the length of "tables", 0 where there is
        none, and drops rows past the twentieth without a trace. Rows behind it keep their old contents.
        [0..20; count-of tables] */
    size_t tableNumber;
    /** Index of a row of `tables`, for the layers above; no text form carries it, reset makes it 0. [0..19] */
    size_t tableIdx;
    /** Class name in the simulator document; not terminated when it is full. */
    char class_[20];
} QvDatabaseAutoDeMosaic_2_t;
static_assert(sizeof(QvDatabaseAutoDeMosaic_2_t) == 12528, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member, in a row or beside them, is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoDeMosaic_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoDeMosaic_2_t* pConfig);
/** Adds the members and the `tableNumber` rows in use to the object of a tuning document: 13 for null, else 0, or
    the status of a list or row that could not be created or attached (traced at Error; what was added stays). */
QV_DATABASE_API int QvDatabaseAutoDeMosaic_2_serialize(QvDatabaseAutoDeMosaic_2_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no row in use, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoDeMosaic_2_reset(QvDatabaseAutoDeMosaic_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
