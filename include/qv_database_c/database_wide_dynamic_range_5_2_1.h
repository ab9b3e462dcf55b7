/** @file
 * The record of the wide dynamic range block. The library stores it for the layers that drive the camera, which
 * read it in place. Its functions follow the conventions in qv_database.h.
 */
#ifndef QV_DATABASE_C_DATABASE_WIDE_DYNAMIC_RANGE_5_2_1_H
#define QV_DATABASE_C_DATABASE_WIDE_DYNAMIC_RANGE_5_2_1_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Wide dynamic range in manual mode (category `WDR_5_2_1`, class "CWdrv5_1" in the simulator document);
    `AWDR_5_2_1` holds the automatic parameters. */
typedef struct QvDatabaseWideDynamicRange_5_2_1 {
    bool enable;          /**< switches the block on; a number, 1 or 0, in the simulator document */
    uint8_t strength;     /**< strength of the block */
    uint8_t highStrength; /**< high strength */
    uint16_t lowStrength; /**< low strength */
    int16_t contrast;     /**< contrast; may be negative, also in documents */

    bool entropyEnable;    /**< switches the entropy part on */
    uint16_t entropyBase;  /**< entropy base */
    uint16_t entropySlope; /**< entropy slope */
    uint16_t wdrLumaThr;   /**< luma threshold */

    bool flatMode;               /**< switches the flat mode on */
    uint8_t flatLevel;           /**< flat level */
    uint8_t flatLevelInc[4][17]; /**< flat level increments; four lists of 17 numbers in documents */

    uint8_t darkAttentionLevel; /**< dark attention level */
    uint16_t fixedWeight;       /**< fixed weight */
    uint8_t wdrCurveSelect;     /**< selection of the curve */
    uint8_t logWeight;          /**< log part: weight */
    float logAnchorXLog;        /**< log part: x of the anchor, log */
    uint16_t logAnchorSlope;    /**< log part: slope of the anchor */
    float ratioActual;          /**< actual ratio */
    float curve2Thr;            /**< threshold of curve 2 */
    float curve2LoSat;          /**< low saturation of curve 2 */
    float curve2LoFactor;       /**< low factor of curve 2 */
    float curve2HiFactor;       /**< high factor of curve 2 */
    uint8_t flatLevelGlobal;    /**< flat level, global */
    float deGamma;              /**< degamma */

    double maxGain;          /**< largest gain; a double here, a float in `AWDR_5_2_1` */
    double minGain;          /**< smallest gain */
    float diffHigh;          /**< upper difference */
    float diffLow;           /**< lower difference */
    float satRange;          /**< saturation range */
    uint16_t satThrGainDown; /**< saturation threshold, gain down */
    uint16_t satThrGainUp;   /**< saturation threshold, gain up */

    uint8_t lightSatLoThr;       /**< light: lower saturation threshold */
    uint8_t lightSatHiThr;       /**< light: upper saturation threshold */
    float lightRedThrLog[4];     /**< light: four log thresholds of red */
    float lightGreenThrLog[4];   /**< light: four log thresholds of green */
    float lightBlueThrLog[4];    /**< light: four log thresholds of blue */
    float lightYellowThrLog[4];  /**< light: four log thresholds of yellow */
    float lightCyanThrLog[4];    /**< light: four log thresholds of cyan */
    float lightMagentaThrLog[4]; /**< light: four log thresholds of magenta */
    float hlcBaseLog;            /**< HLC base, log */
    uint8_t hlcSlope;            /**< HLC slope */
    bool lightEn;                /**< switches the light part on */

    uint8_t dampMode;         /**< damping mode */
    uint8_t dampCurveCoef;    /**< damping: curve coefficient */
    uint8_t dampCurveMax;     /**< damping: upper curve limit */
    uint8_t dampCurveMin;     /**< damping: lower curve limit */
    uint8_t dampAvgCoef;      /**< damping: average coefficient */
    uint8_t dampAvgMax;       /**< damping: upper average limit */
    uint8_t dampAvgMin;       /**< damping: lower average limit */
    uint8_t dampCoefDecLimit; /**< damping: limit of the coefficient, dec */
    uint8_t dampCoefIncLimit; /**< damping: limit of the coefficient, inc */
    uint8_t dampFilterSize;   /**< size of the damping filter */
    float dampHiThrLog;       /**< upper damping threshold, log */
    float dampLoThrLog;       /**< lower damping threshold, log */

    uint8_t wdrRgbCoef[3];      /**< three RGB coefficients */
    uint8_t wdrLightnessWeight; /**< weight of the lightness */
    uint8_t wdrColorWeight[3];  /**< three colour weights */

    uint32_t gammaUpCurveX[65]; /**< x of the 65 points of the gamma-up curve [curve-x gammaUpCurveY] */
    uint32_t gammaUpCurveY[65]; /**< y of the 65 points of the gamma-up curve [curve-y gammaUpCurveX] */

    bool isStatistics; /**< for the layers above; no text form carries it */
    char class_[20];   /**< class name in the simulator document; not terminated when it is full */
} QvDatabaseWideDynamicRange_5_2_1_t;
static_assert(sizeof(QvDatabaseWideDynamicRange_5_2_1_t) == 840, "the layout is part of the interface");

/** Fills the record from its object in a tuning document; a field whose member is missing (traced at Debug) keeps
    its value. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseWideDynamicRange_5_2_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseWideDynamicRange_5_2_1_t* pConfig);
/** Adds the members of the record to its object in a tuning document, in declared order but for two places:
    "curve2HiFactor" stands ahead of "curve2LoFactor", and "wdrColorWeight", "wdrLightnessWeight", "wdrRgbCoef"
    follow in that order. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseWideDynamicRange_5_2_1_serialize(QvDatabaseWideDynamicRange_5_2_1_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseWideDynamicRange_5_2_1_reset(QvDatabaseWideDynamicRange_5_2_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
