/** @file
 * Metadata of a frame: exposure, gains with their ranges, white balance, colour correction and mean luma (category
 * `MT`).
 *
 * The category is in no tuning document, initialization file or binary image. QvDatabase_metaLoad and
 * QvDatabase_metaSave keep it in a JSON file of its own, in one of two forms: the full form, which the codecs of this
 * header carry, or the simulator form, which has frameCount as "frame_index", integrationTime as "image_int_time" and
 * sensorDigitalGain as "image_gain". The library gives no unit to the values and computes nothing from them.
 */
#ifndef QV_DATABASE_C_DATABASE_META_H
#define QV_DATABASE_C_DATABASE_META_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>
#include <qv_json_c/json_writer.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Limits and step of an integer setting. */
typedef struct QvDatabaseIntegerRange {
    uint32_t max;  /**< largest value */
    uint32_t min;  /**< smallest value */
    uint32_t step; /**< distance of two values */
} QvDatabaseIntegerRange_t;
static_assert(sizeof(QvDatabaseIntegerRange_t) == 12, "the layout is part of the interface");

/** Limits and step of a float setting. */
typedef struct QvDatabaseFloatRange {
    float max;  /**< largest value */
    float min;  /**< smallest value */
    float step; /**< distance of two values */
} QvDatabaseFloatRange_t;
static_assert(sizeof(QvDatabaseFloatRange_t) == 12, "the layout is part of the interface");

/** One value for each of the four raw channels. */
typedef struct QvDatabaseRawChannelFloat {
    float redChannel;  /**< red pixels */
    float grChannel;   /**< green pixels in the red rows */
    float gbChannel;   /**< green pixels in the blue rows */
    float blueChannel; /**< blue pixels */
} QvDatabaseRawChannelFloat_t;
static_assert(sizeof(QvDatabaseRawChannelFloat_t) == 16, "the layout is part of the interface");

/** State of the colour correction. */
typedef struct QvDatabaseMetaCcmStatus {
    bool enable;        /**< colour correction is on [measured] */
    float ccmMatrix[9]; /**< 3 x 3 matrix, a flat list in documents [matrix 3x3] */
    float ccmOffset[3]; /**< offsets of the three colours [measured] */
} QvDatabaseMetaCcmStatus_t;
static_assert(sizeof(QvDatabaseMetaCcmStatus_t) == 52, "the layout is part of the interface");

/** Mean values of up to 25 windows of the image. */
typedef struct QvDatabaseMetaMeanLuma {
    uint8_t meanWinNum;                   /**< number of windows [measured] */
    QvDatabaseRectangle_t meanRoiWin[25]; /**< regions of the windows, pixels [window] */
    uint32_t redChannelMean[25];          /**< mean of the red pixels of each window [measured] */
    uint32_t grChannelMean[25];           /**< mean of the green pixels in the red rows of each window [measured] */
    uint32_t gbChannelMean[25];           /**< mean of the green pixels in the blue rows of each window [measured] */
    uint32_t blueChannelMean[25];         /**< mean of the blue pixels of each window [measured] */
    uint32_t totalMean[25];               /**< total mean of each window [measured] */
} QvDatabaseMetaMeanLuma_t;
static_assert(sizeof(QvDatabaseMetaMeanLuma_t) == 704, "the layout is part of the interface");

/** Metadata of one frame (category `MT`). QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseMeta {
    int32_t bufChainId;                               /**< buffer chain id; -1 is written as 4294967295 [measured] */
    uint8_t modeAwb;                                  /**< white balance mode; in no document */
    uint8_t modeAe;                                   /**< exposure mode; in no document */
    float maxExposureTime;                            /**< longest exposure time; in no document */
    uint32_t chipId;                                  /**< chip id [measured] */
    uint64_t frameCount;                              /**< number of the frame [measured] */
    uint32_t apertureSize;                            /**< size of the aperture [measured] */
    uint32_t isoStrength;                             /**< ISO strength [measured] */
    float junctionTemperature;                        /**< junction temperature [measured] */
    uint32_t blackLevelPedestal;                      /**< black level pedestal [measured] */
    uint8_t exposureNum;                              /**< number of exposures [measured] */
    uint32_t integrationTime[6];                      /**< integration times [measured] */
    QvDatabaseIntegerRange_t integrationTimeRange[6]; /**< limits of the integration times [measured] */
    float sensorAnalogGain[6];                        /**< analog gains of the sensor [measured] */
    QvDatabaseFloatRange_t sensorAnalogGainRange[6];  /**< limits of the analog gains [measured] */
    float sensorDigitalGain[6];                       /**< digital gains of the sensor [measured] */
    QvDatabaseFloatRange_t sensorDigitalGainRange[6]; /**< limits of the digital gains [measured] */
    QvDatabaseRawChannelFloat_t wbGain[6];            /**< white balance gains of the raw channels [measured] */
    float dualConvGain[6];                            /**< dual conversion gains [measured] */
    QvDatabaseRawChannelFloat_t ispDgain;             /**< digital gain of the ISP [measured] */
    QvDatabaseRawChannelFloat_t ispWbGain;            /**< white balance gain of the ISP [measured] */
    float luxIndex;                                   /**< lux index [measured] */
    float totalGain;                                  /**< total gain [measured] */
    float edrValue;                                   /**< EDR value [measured] */
    QvDatabaseMetaCcmStatus_t ccmConfig;              /**< state of the colour correction [measured] */
    QvDatabaseMetaMeanLuma_t meanLuma[6];             /**< mean values of the windows [measured] */
    uint8_t bitWidth;                                 /**< bit width; written and never read [bit; measured] */
    uint32_t width;                                   /**< columns of the frame; written, never read [px; measured] */
    uint32_t height;                                  /**< rows of the frame; written, never read [px; measured] */
    uint8_t bayerPattern;                             /**< Bayer pattern; written and never read [measured] */
    uint8_t sensorMode;                               /**< sensor mode; written and never read [measured] */
    size_t tableIndex;                                /**< index of a table; in no document */
    size_t tableNumber;                               /**< number of tables, default 1; in no document */
} QvDatabaseMeta_t;
static_assert(sizeof(QvDatabaseMeta_t) == 4808, "the layout is part of the interface");

/** Fills the record from a meta document in the full form. 0; 13 where an argument is null; the status of a nested
    record that fails, with the fields before it already changed. A missing member is traced at Debug and its field
    keeps its value; lists of objects are asked for at full length, whatever the document holds. */
QV_DATABASE_API int QvDatabaseMeta_parse(QvJsonValue_t* pValue, QvDatabaseMeta_t* pConfig);

/** Adds the members of the full form to an object. 0; 13 where an argument is null; the status of a nested record that
    fails. */
QV_DATABASE_API int QvDatabaseMeta_serialize(QvDatabaseMeta_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record: all zero but tableNumber. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseMeta_reset(QvDatabaseMeta_t* pConfig);

/** Gives the full form as text in a buffer and tags it with the frame. The buffer's earlier content is dropped; then
    pBegin is a heap text that belongs to the buffer, size the length without the terminator, isAllocated true, and
    pUserData holds the value of frameCount, an integer in a pointer's place. 0; 13 where an argument is null or the
    writer is 0; what the writer of the text returns, the buffer being empty then; else the status of the JSON step that
    failed, the buffer being unchanged. */
QV_DATABASE_API int QvDatabaseMeta_serialize2(QvDatabaseMeta_t* pConfig, QvJsonWriterHandle_t hJsonWriter,
                                              QvCommonBuffer_t* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
