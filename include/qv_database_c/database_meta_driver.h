/** @file
 * The driver of the simulator: what frames it takes and what files it makes (category `MD`).
 *
 * The library carries the fields and reads none of them. Keys are in lower case with underscores ("start_frame"); the
 * comments name those that are spelled as the field. A text that fills its field has no terminator, and writing it to a
 * document runs on into the fields behind it.
 */
#ifndef QV_DATABASE_C_DATABASE_META_DRIVER_H
#define QV_DATABASE_C_DATABASE_META_DRIVER_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The frames that the driver takes, the object "input" of the driver. */
typedef struct QvDatabaseMetaDriver_Input {
    char bayerPattern[10];  /**< name of the Bayer pattern */
    uint16_t bit;           /**< bits of the input, known to the simulator alone */
    uint16_t crop[4];       /**< crop region, four numbers in the order of the simulator */
    uint16_t frames;        /**< number of frames */
    uint16_t height;        /**< number of rows [px] */
    char path[10][256];     /**< input files; all 10 texts are written, empty ones too */
    char metadataInfo[256]; /**< metadata information, as text */
    uint16_t startFrame;    /**< first frame */
    uint16_t width;         /**< number of columns [px] */
} QvDatabaseMetaDriver_Input_t;
static_assert(sizeof(QvDatabaseMetaDriver_Input_t) == 2844, "the layout is part of the interface");

/** The files that the driver makes, the object "output" of the driver. */
typedef struct QvDatabaseMetaDriver_Output {
    uint16_t dumpYuvVideo;  /**< YUV video is dumped; a number, not a boolean */
    uint16_t height;        /**< number of rows [px] */
    char jpgFile[256];      /**< name of the JPEG file */
    char path[256];         /**< path of the output */
    char videoFile[256];    /**< name of the video file */
    uint16_t width;         /**< number of columns [px] */
    char yuvFile[256];      /**< name of the YUV file */
    char format[256];       /**< output format, as text */
    uint16_t dataBits;      /**< data bits, known to the simulator alone; key "dataBits" */
    uint16_t yuvOrder;      /**< YUV order; key "yuvOrder" */
    uint16_t alpha;         /**< alpha setting */
    uint16_t dumpStatistic; /**< statistics are dumped, a number; key "dumpStatistic" */
} QvDatabaseMetaDriver_Output_t;
static_assert(sizeof(QvDatabaseMetaDriver_Output_t) == 1294, "the layout is part of the interface");

/** Driver of the simulator (category `MD`), carried by simulator documents alone, as members of the driver object.
    QvDatabase_reset leaves it alone. */
typedef struct QvDatabaseMetaDriver {
    /** switches the driver on */
    bool enable;
    /** id of the driver */
    uint16_t id;
    /** frames it takes */
    QvDatabaseMetaDriver_Input_t input;
    /** flag; when read, `MISC` takes its own from the same key "nr_reloc" */
    bool nrReloc;
    /** files it makes */
    QvDatabaseMetaDriver_Output_t output;
} QvDatabaseMetaDriver_t;
static_assert(sizeof(QvDatabaseMetaDriver_t) == 4144, "the layout is part of the interface");

/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabaseMetaDriver_reset(QvDatabaseMetaDriver_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
