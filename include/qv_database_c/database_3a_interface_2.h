/** @file
 * Interface of exposure, white balance and focus to the simulator (category `3AI_2`).
 *
 * The library carries the fields and reads none of them. Keys are in lower case with underscores ("auto_table"); the
 * comments name those that are not simply the field name in that spelling.
 */
#ifndef QV_DATABASE_C_DATABASE_3A_INTERFACE_2_H
#define QV_DATABASE_C_DATABASE_3A_INTERFACE_2_H

#include <assert.h>
#include <stdbool.h>
#include <stdint.h>

#include <qv_database_c/qv_database_export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** 3A interface of the simulator (category `3AI_2`), carried by simulator documents alone, as the object of class
    "C3Av2Interface" in the list "driver". Its switches are booleans there. QvDatabase_reset leaves it alone. */
typedef struct QvDatabase3AInterface_2 {
    char autoTable[256];           /**< auto table, as text; not terminated when it is full */
    bool awbEnable;                /**< switches automatic white balance on */
    bool cacEnable;                /**< switches chromatic aberration correction on */
    bool ccEnable;                 /**< switches colour correction on */
    bool enable;                   /**< switches the interface on; a boolean in the document, not a number */
    float integrationTime;         /**< integration time */
    bool lscEnable;                /**< switches lens shading correction on */
    uint16_t lscVersion;           /**< version of lens shading correction */
    float sensorGain;              /**< gain of the sensor */
    char xml[256];                 /**< "xml" of the interface; not terminated when it is full */
    bool metadataEnable;           /**< switches the metadata on */
    float metadataExposureGain[6]; /**< exposure gains of the metadata; key "metadata_exposure_gain_array" */
    float metadataExposureTime[6]; /**< exposure times of the metadata; key "metadata_exposure_time_array" */
    float metadataCCT[6];          /**< colour temperatures of the metadata; key "metadata_CCT_array" */
    float metadataAwbGains[6][4];  /**< white balance gains of the metadata; key "metadata_awb_gains_array" */
    float maxExposureTime;         /**< longest exposure time */
    char class_[20];               /**< class name in the simulator document; not terminated when it is full */
} QvDatabase3AInterface_2_t;
static_assert(sizeof(QvDatabase3AInterface_2_t) == 724, "the layout is part of the interface");

/** Puts the defaults, all zero, into the record. 0, or 13 for null. */
QV_DATABASE_API int QvDatabase3AInterface_2_reset(QvDatabase3AInterface_2_t* pConfig);

#ifdef __cplusplus
}
#endif

#endif
