/** @file
 * The gain-scheduled parameters of wide dynamic range: the row type, the record and its functions.
 */
#ifndef QV_DATABASE_C_DATABASE_AUTO_WIDE_DYNAMIC_RANGE_5_2_1_H
#define QV_DATABASE_C_DATABASE_AUTO_WIDE_DYNAMIC_RANGE_5_2_1_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** One schedule of wide dynamic range: 20 gain points and the parameters at each of them, index by index. */
typedef struct QvDatabaseAutoWideDynamicRange_5_2_1_Table {
    float gain[20];                  /**< gain points of the lists beside it; simulator key "gains" [gain-axis] */
    uint8_t highStrength[20];        /**< strength, high part */
    uint16_t lowStrength[20];        /**< strength, low part */
    uint16_t entropyBase[20];        /**< base of the entropy */
    uint16_t wdrLumaThr[20];         /**< luma threshold */
    uint16_t entropySlope[20];       /**< slope of the entropy */
    uint8_t flatLevel[20];           /**< flat level */
    uint8_t flatLevelGlobal[20];     /**< global flat level */
    float satRange[20];              /**< saturation range */
    uint16_t satThrGainDown[20];     /**< saturation threshold, gain down */
    uint16_t satThrGainUp[20];       /**< saturation threshold, gain up */
    float deGamma[20];               /**< de-gamma value */
    float hlcBaseLog[20];            /**< base of the HLC, in log form */
    uint8_t lightSatLoThr[20];       /**< low threshold of the light saturation */
    uint8_t lightSatHiThr[20];       /**< high threshold of the light saturation */
    float lightRedThrLog[20][4];     /**< light thresholds in log form, red: four for each gain point */
    float lightGreenThrLog[20][4];   /**< light thresholds in log form, green: four for each gain point */
    float lightBlueThrLog[20][4];    /**< light thresholds in log form, blue: four for each gain point */
    float lightYellowThrLog[20][4];  /**< light thresholds in log form, yellow: four for each gain point */
    float lightCyanThrLog[20][4];    /**< light thresholds in log form, cyan: four for each gain point */
    float lightMagentaThrLog[20][4]; /**< light thresholds in log form, magenta: four for each gain point */
    int16_t contrast[20];            /**< contrast; the only signed member */
    uint16_t fixedWeight[20];        /**< fixed weight */
    uint8_t logWeight[20];           /**< weight of the log curve */
    float logAnchorXLog[20];         /**< x of the log curve's anchor, in log form */
    uint16_t logAnchorSlope[20];     /**< slope at the log curve's anchor */
    float maxGain[20];               /**< upper limit of the gain; a double in `WDR_5_2_1` */
    uint8_t hlcSlope[20];            /**< slope of the HLC */
    bool lightEn[20]; /**< switches the light part on; 0 and 1 in the simulator document, bools in a tuning one */
    uint8_t wdrColorWeight[20][3]; /**< three colour weights for each gain point */
    bool hdr;                      /**< HDR flag of the schedule */
} QvDatabaseAutoWideDynamicRange_5_2_1_Table_t;
static_assert(sizeof(QvDatabaseAutoWideDynamicRange_5_2_1_Table_t) == 2984, "the layout is part of the interface");

/** Automatic parameters of wide dynamic range, category `AWDR_5_2_1`, the counterpart of `WDR_5_2_1`: up to 20
    schedules over the gain. The tuning document and the simulator document (class "AWdrv511") carry it; which row is
    used and what holds between two gain points is up to the layers above. The two counters stand in the reverse of
    the usual order, which the binary image depends on. */
typedef struct QvDatabaseAutoWideDynamicRange_5_2_1 {
    /** Switches the automatic mode of the block on. */
    bool enable;
    /** The schedules, array "tables" in documents, one object for each row in use; a written row holds all 20 gain
        points, a row that is read may hold fewer. */
    QvDatabaseAutoWideDynamicRange_5_2_1_Table_t tables[20];
    /** Index of a row of `tables`, for the layers above; no text form carries it, reset makes it 0. [0..19] */
    size_t tableIdx;
    /** Rows in use, at most 20. No member of its own: reading sets it to the length of "tables", 0 where there is
        none, and drops rows past the twentieth without a trace. Rows behind it keep their old contents.
        [0..20; count-of tables] */
    size_t tableNumber;
    /** Class name in the simulator document; not terminated when it is full. */
    char class_[20];
} QvDatabaseAutoWideDynamicRange_5_2_1_t;
static_assert(sizeof(QvDatabaseAutoWideDynamicRange_5_2_1_t) == 59728, "the layout is part of the interface");

/** Reads the record from its object in a tuning document by the conventions in qv_database.h: 13 for null, else 0. A
    missing member, in a row or beside them, is traced at Debug and its field keeps its value. */
QV_DATABASE_API int QvDatabaseAutoWideDynamicRange_5_2_1_parse(QvJsonValue_t* pValue,
                                                               QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig);
/** Adds the members and the `tableNumber` rows in use to the object of a tuning document: 13 for null, else 0, or
    the status of a list or row that could not be created or attached (traced at Error; what was added stays). */
QV_DATABASE_API int QvDatabaseAutoWideDynamicRange_5_2_1_serialize(QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig,
                                                                   QvJsonValue_t* pValue);
/** Puts the defaults into the record: all zero, no row in use, no class name. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseAutoWideDynamicRange_5_2_1_reset(QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
