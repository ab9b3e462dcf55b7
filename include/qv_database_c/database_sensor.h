/** @file
 * The image sensor: driver, modes, test pattern, the sensors that can be listed with their driver modes, and the ports
 * where sensors are connected (category `SS`).
 *
 * Numbers such as Bayer pattern, stitching, native or autofocus mode are stored as they come; the library gives them no
 * meaning. A text that fills its field has no terminator, and writing it to a document runs on into the fields behind
 * it. Capacities are fixed, and the counts beside the arrays are members of their own: reading an array doesn't change
 * its count, and entries behind those of the document keep their values.
 */
#ifndef QV_DATABASE_C_DATABASE_SENSOR_H
#define QV_DATABASE_C_DATABASE_SENSOR_H

#include <assert.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Kind of a sensor mode. */
typedef enum QvDatabaseSensor_Type {
    QvDatabaseSensor_Type_Linear = 0,       /**< linear */
    QvDatabaseSensor_Type_StitchingHdr = 1, /**< stitching HDR */
    QvDatabaseSensor_Type_NativeHdr = 2,    /**< native HDR */
} QvDatabaseSensor_Type_t;

/** Compression in a mode. */
typedef struct QvDatabaseSensor_Compress {
    bool enable;   /**< compression is on */
    uint32_t xBit; /**< bit setting x of the compression */
    uint32_t yBit; /**< bit setting y of the compression */
} QvDatabaseSensor_Compress_t;
static_assert(sizeof(QvDatabaseSensor_Compress_t) == 12, "the layout is part of the interface");

/** One mode in which the sensor can run. */
typedef struct QvDatabaseSensor_Mode {
    uint16_t autoFocusMode;               /**< autofocus mode */
    uint16_t bayerPattern;                /**< Bayer pattern */
    uint32_t bitWidth;                    /**< bit width [bit] */
    QvDatabaseSensor_Compress_t compress; /**< compression in this mode */
    uint16_t fpsMax;                      /**< highest frame rate [1/s] */
    uint16_t nativeMode;                  /**< native mode */
    QvDatabaseRectangle_t rectangle;      /**< region of the image, pixels [window] */
    uint16_t stitchingMode;               /**< stitching mode */
    QvDatabaseSensor_Type_t type;         /**< linear or HDR; not checked when read */
} QvDatabaseSensor_Mode_t;
static_assert(sizeof(QvDatabaseSensor_Mode_t) == 40, "the layout is part of the interface");

/** Test pattern of the sensor. */
typedef struct QvDatabaseSensor_TestPattern {
    bool enable;   /**< the pattern is on */
    uint16_t type; /**< which pattern */
} QvDatabaseSensor_TestPattern_t;
static_assert(sizeof(QvDatabaseSensor_TestPattern_t) == 4, "the layout is part of the interface");

/** Limits and step of a gain or an integration time. In documents `min` stands before `max`. */
typedef struct QvDatabaseSensorRange {
    float max;  /**< largest value */
    float min;  /**< smallest value */
    float step; /**< distance of two values */
} QvDatabaseSensorRange_t;
static_assert(sizeof(QvDatabaseSensorRange_t) == 12, "the layout is part of the interface");

/** Gain and integration time ranges of a driver mode, four each. Documents carry them outward only: they are written
    and never read. */
typedef struct QvDatabaseSensorAeInfo {
    QvDatabaseSensorRange_t aGainRange[4];   /**< ranges of the analog gain; written and never read */
    QvDatabaseSensorRange_t dGainRange[4];   /**< ranges of the digital gain; written and never read */
    QvDatabaseSensorRange_t intTimeRange[4]; /**< ranges of the integration time; written and never read */
} QvDatabaseSensorAeInfo_t;
static_assert(sizeof(QvDatabaseSensorAeInfo_t) == 144, "the layout is part of the interface");

/** One mode as a driver offers it. The signed fields are written as unsigned numbers, -1 as 4294967295; reading that
    back gives -1. */
typedef struct QvDatabaseSensor_DrvModeInfo {
    uint32_t index;                  /**< index of the mode */
    uint32_t width;                  /**< number of columns [px] */
    uint32_t height;                 /**< number of rows [px] */
    int32_t sensorType;              /**< sensor type */
    int32_t stitchingMode;           /**< stitching mode */
    int32_t nativeMode;              /**< native mode */
    uint32_t bitWidth;               /**< bit width [bit] */
    int32_t bayerPattern;            /**< Bayer pattern */
    uint32_t maxFps;                 /**< highest frame rate [1/s] */
    int32_t afMode;                  /**< autofocus mode */
    uint32_t dataType;               /**< data type */
    uint32_t itfType;                /**< interface type */
    QvDatabaseSensorAeInfo_t aeInfo; /**< gain and integration time ranges; written and never read */
} QvDatabaseSensor_DrvModeInfo_t;
static_assert(sizeof(QvDatabaseSensor_DrvModeInfo_t) == 192, "the layout is part of the interface");

/** One sensor that can be chosen, with the modes of its driver. */
typedef struct QvDatabaseSensor_ListInfo {
    uint32_t number;                                 /**< number in use and written [0..20; count-of drvModeInfos] */
    char name[20];                                   /**< name of the sensor */
    QvDatabaseSensor_DrvModeInfo_t drvModeInfos[20]; /**< modes of the driver; read as far as the document goes */
} QvDatabaseSensor_ListInfo_t;
static_assert(sizeof(QvDatabaseSensor_ListInfo_t) == 3864, "the layout is part of the interface");

/** One port with the sensor connected to it. */
typedef struct QvDatabaseSensor_ConnectPortInfo {
    uint32_t chipId; /**< chip id of the sensor */
    char name[20];   /**< name of the sensor */
} QvDatabaseSensor_ConnectPortInfo_t;
static_assert(sizeof(QvDatabaseSensor_ConnectPortInfo_t) == 24, "the layout is part of the interface");

/** Sensor configuration (category `SS`), carried by tuning documents and the binary image. An initialization file
    carries driverName, modeIdx and testPattern, a simulator document class_ and enable. QvDatabase_reset puts the
    defaults back. */
typedef struct QvDatabaseSensor {
    /** index of the mode in use */
    uint16_t modeIdx;
    /** entries in use of modes; says nothing about what is read or written [0..20; count-of modes] */
    size_t modeNumber;
    /** modes of the sensor; all 20 are written whatever modeNumber says */
    QvDatabaseSensor_Mode_t modes[20];
    /** name of the driver, default "ov2775"; read from "driverName" or "name", of which "name" wins */
    char driverName[20];
    /** test pattern; read from "testPattern" or, where that is absent, "pattern"; written as "testPattern" */
    QvDatabaseSensor_TestPattern_t testPattern;
    /** entries in use of listInfos; as many are written [0..30; count-of listInfos] */
    uint16_t listInfoNumber;
    /** sensors that a driver can offer; read as far as the document goes */
    QvDatabaseSensor_ListInfo_t listInfos[30];
    /** entries in use of connectPortInfos; as many are written [0..2; count-of connectPortInfos] */
    uint16_t connectPortInfoNumber;
    /** connected sensors; read as far as the document goes */
    QvDatabaseSensor_ConnectPortInfo_t connectPortInfos[2];
    /** class name, "classname" in the simulator document; not terminated when it is full */
    char class_[20];
    /** enable flag of the simulator document; in no other text form */
    bool enable;
    /** current name of the driver; in no text form */
    char driverNameCurrent[20];
} QvDatabaseSensor_t;
static_assert(sizeof(QvDatabaseSensor_t) == 116864, "the layout is part of the interface");

/** Fills the record from its object in a tuning document. 0; 13 where an argument is null; the status of a nested
    record that fails, with the fields before it already changed. A missing member is traced at Debug and its field
    keeps its value. The counts are stored as the document gives them, without a look at the capacities. */
QV_DATABASE_API int QvDatabaseSensor_parse(QvJsonValue_t* pValue, QvDatabaseSensor_t* pConfig);

/** Adds the members of the record to its object in a tuning document. 0; 13 where an argument is null; the status of a
    nested record that fails. A list whose count is 0 gives a member with no value, one whose count is above its
    capacity gives the whole array. */
QV_DATABASE_API int QvDatabaseSensor_serialize(QvDatabaseSensor_t* pConfig, QvJsonValue_t* pValue);

/** Puts the defaults into the record: all zero but driverName. Always 0; pConfig is not tested and must not be null. */
QV_DATABASE_API int QvDatabaseSensor_reset(QvDatabaseSensor_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
