/** @file
 * The record of the demosaic block. The library stores it for the layers that drive the camera, which read it in
 * place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_DEMOSAIC_2_H
#define QV_DATABASE_C_DATABASE_DEMOSAIC_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Demosaic with its stages sharpening, de-moire, skin, de-purple and chromatic aberration correction, in manual
    mode (category `DMSC_2`, class "CDmscv2" in the simulator document); `ADMSC_2` holds the automatic parameters.
    The six signed fields are written without their sign: -1 stands as 65535 in tuning and simulator documents and
    reads back as -1. The simulator document names the fields of chromatic aberration without their prefix, such as
    "a_blue", "cac_enable" and "center_h_offs". */
typedef struct QvDatabaseDeMosaic_2 {
    bool enable;                /**< switches the block on; key "demosaic_enable" in the simulator document */
    bool dmscDeMoireEnable;     /**< switches de-moire on */
    bool dmscSharpenEnable;     /**< switches sharpening on */
    bool dmscSharpenLineEnable; /**< switches line sharpening on */
    bool dmscSkinEnable;        /**< switches the skin stage on */
    bool dmscDePurpleEnable;    /**< switches de-purple on */
    bool dmscCacEnable;         /**< switches chromatic aberration correction on */

    uint8_t demosaicThr;    /**< demosaic threshold */
    uint16_t dmscDirThrMax; /**< direction threshold, upper */
    uint16_t dmscDirThrMin; /**< direction threshold, lower */

    uint8_t dmscDemoireT1;        /**< de-moire parameter T1 */
    uint8_t dmscDemoireT2Shift;   /**< de-moire parameter T2, as a shift */
    uint16_t dmscDemoireR1;       /**< de-moire parameter R1 */
    uint16_t dmscDemoireR2;       /**< de-moire parameter R2 */
    uint16_t demoireEdgeR1;       /**< de-moire edge parameter R1 */
    uint16_t demoireEdgeR2;       /**< de-moire edge parameter R2 */
    uint16_t demoireEdgeT1;       /**< de-moire edge parameter T1 */
    uint8_t demoireEdgeT2Shift;   /**< de-moire edge parameter T2, as a shift */
    uint8_t dmscDemoireAreaThr;   /**< de-moire area threshold */
    uint8_t dmscDemoireSatShrink; /**< de-moire saturation shrink */

    uint16_t dmscSharpenClipBlack;    /**< sharpening clip of black */
    uint16_t dmscSharpenClipWhite;    /**< sharpening clip of white */
    uint16_t dmscSharpenFactorBlack;  /**< sharpening factor of black */
    uint16_t dmscSharpenFactorWhite;  /**< sharpening factor of white */
    uint16_t dmscSharpenR1;           /**< sharpening parameter R1 */
    uint16_t dmscSharpenR2;           /**< sharpening parameter R2 */
    uint16_t dmscSharpenR3;           /**< sharpening parameter R3 */
    uint16_t dmscSharpenT1;           /**< sharpening parameter T1 */
    uint16_t dmscSharpenT3;           /**< sharpening parameter T3 */
    uint8_t dmscSharpenSize;          /**< sharpening size */
    uint8_t dmscSharpenT2Shift;       /**< sharpening parameter T2, as a shift */
    uint8_t dmscSharpenT4Shift;       /**< sharpening parameter T4, as a shift */
    uint8_t dmscDenoiseStrength;      /**< denoising strength */
    uint16_t dmscSharpenLineR1;       /**< line sharpening parameter R1 */
    uint16_t dmscSharpenLineR2;       /**< line sharpening parameter R2 */
    uint16_t dmscSharpenLineStrength; /**< line sharpening strength */
    uint16_t dmscSharpenLineThr;      /**< line sharpening threshold */
    uint8_t dmscSharpenLineThrShift1; /**< line sharpening threshold shift 1 */

    int16_t dmscSkinCbThrMax; /**< skin threshold in Cb, upper; in documents as its unsigned 16-bit number */
    int16_t dmscSkinCbThrMin; /**< skin threshold in Cb, lower; in documents as its unsigned 16-bit number */
    int16_t dmscSkinCrThrMax; /**< skin threshold in Cr, upper; in documents as its unsigned 16-bit number */
    int16_t dmscSkinCrThrMin; /**< skin threshold in Cr, lower; in documents as its unsigned 16-bit number */
    uint16_t dmscSkinYThrMax; /**< skin threshold in Y, upper */
    uint16_t dmscSkinYThrMin; /**< skin threshold in Y, lower */

    uint8_t dmscDepurpleCbcrMode;  /**< de-purple mode for Cb and Cr */
    uint8_t dmscDepurpleSatShrink; /**< de-purple saturation shrink */
    uint8_t dmscDepurpleThr;       /**< de-purple threshold */

    float cacCfgABlue; /**< chromatic aberration coefficient A of blue; key "a_blue" in the simulator document */
    float cacCfgARed;  /**< chromatic aberration coefficient A of red; key "a_red" in the simulator document */
    float cacCfgBBlue; /**< chromatic aberration coefficient B of blue; key "b_blue" in the simulator document */
    float cacCfgBRed;  /**< chromatic aberration coefficient B of red; key "b_red" in the simulator document */
    float cacCfgCBlue; /**< chromatic aberration coefficient C of blue; key "c_blue" in the simulator document */
    float cacCfgCRed;  /**< chromatic aberration coefficient C of red; key "c_red" in the simulator document */
    int16_t cacCfgCenterHoffs; /**< aberration centre offset, horizontal; in documents as its unsigned 16-bit number */
    int16_t cacCfgCenterVoffs; /**< aberration centre offset, vertical; in documents as its unsigned 16-bit number */
    bool overrideCaliEn;       /**< calibration override, default true; no simulator document carries it */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseDeMosaic_2_t;
static_assert(sizeof(QvDatabaseDeMosaic_2_t) == 128, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDeMosaic_2_parse(QvJsonValue_t* pValue, QvDatabaseDeMosaic_2_t* pConfig);
/** Adds the members of the record to its object in a tuning document, not in the declared order. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDeMosaic_2_serialize(QvDatabaseDeMosaic_2_t* pConfig, QvJsonValue_t* pValue);
/** Puts the defaults into the record: overrideCaliEn true, all else zero. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseDeMosaic_2_reset(QvDatabaseDeMosaic_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
