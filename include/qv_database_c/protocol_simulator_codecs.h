/*
 * The simulator document: a model of the pipeline exchanges parameters as objects named by a class string. Each
 * category has a pair of codecs here that carry one class object; the two entry points walk a whole document.
 *
 * The pairs share one contract. Parsing takes the class object and the record, serializing the record and the class
 * object; both stay the caller's. A null argument gives 13, else the result is 0: a member that is missing is traced at
 * Debug and leaves its field as it was. Only serializing a schedule can fail otherwise, with 5, when memory runs out.
 */
#ifndef QV_DATABASE_C_PROTOCOL_SIMULATOR_CODECS_H
#define QV_DATABASE_C_PROTOCOL_SIMULATOR_CODECS_H

#include <qv_database_c/database_base.h>
#include <qv_database_c/qv_database_export.h>
#include <qv_json_c/json_value.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The records, each defined in its own header. */
typedef struct QvDatabase2DNoiseReduction_5_2 QvDatabase2DNoiseReduction_5_2_t;
typedef struct QvDatabase3AInterface_2 QvDatabase3AInterface_2_t;
typedef struct QvDatabase3DNoiseReduction_2_1 QvDatabase3DNoiseReduction_2_1_t;
typedef struct QvDatabaseAuto2DNoiseReduction_5_2 QvDatabaseAuto2DNoiseReduction_5_2_t;
typedef struct QvDatabaseAuto3DNoiseReduction_2_1 QvDatabaseAuto3DNoiseReduction_2_1_t;
typedef struct QvDatabaseAutoBlackLevelSubtraction QvDatabaseAutoBlackLevelSubtraction_t;
typedef struct QvDatabaseAutoColorCorrectionMatrix_1_1 QvDatabaseAutoColorCorrectionMatrix_1_1_t;
typedef struct QvDatabaseAutoColorNoiseReduction_2_2 QvDatabaseAutoColorNoiseReduction_2_2_t;
typedef struct QvDatabaseAutoColorProcess_1_2 QvDatabaseAutoColorProcess_1_2_t;
typedef struct QvDatabaseAutoDeMosaic_2 QvDatabaseAutoDeMosaic_2_t;
typedef struct QvDatabaseAutoDefectPixelClusterCorrection QvDatabaseAutoDefectPixelClusterCorrection_t;
typedef struct QvDatabaseAutoEdgeEnhance_2 QvDatabaseAutoEdgeEnhance_2_t;
typedef struct QvDatabaseAutoExposureStatistics_2 QvDatabaseAutoExposureStatistics_2_t;
typedef struct QvDatabaseAutoExposure_3 QvDatabaseAutoExposure_3_t;
typedef struct QvDatabaseAutoFocusMeasurement QvDatabaseAutoFocusMeasurement_t;
typedef struct QvDatabaseAutoFocus_3 QvDatabaseAutoFocus_3_t;
typedef struct QvDatabaseAutoGammaCorrection_2 QvDatabaseAutoGammaCorrection_2_t;
typedef struct QvDatabaseAutoGreenEquilibration QvDatabaseAutoGreenEquilibration_t;
typedef struct QvDatabaseAutoLensShadingCorrection_4 QvDatabaseAutoLensShadingCorrection_4_t;
typedef struct QvDatabaseAutoWhiteBalance_3 QvDatabaseAutoWhiteBalance_3_t;
typedef struct QvDatabaseAutoWideDynamicRange_5_2_1 QvDatabaseAutoWideDynamicRange_5_2_1_t;
typedef struct QvDatabaseAutoWorkMode QvDatabaseAutoWorkMode_t;
typedef struct QvDatabaseBlackLevelSubtraction QvDatabaseBlackLevelSubtraction_t;
typedef struct QvDatabaseColorCorrectionMatrix_1_1 QvDatabaseColorCorrectionMatrix_1_1_t;
typedef struct QvDatabaseColorNoiseReduction_2_2 QvDatabaseColorNoiseReduction_2_2_t;
typedef struct QvDatabaseColorProcess_1_2 QvDatabaseColorProcess_1_2_t;
typedef struct QvDatabaseCompand_1_1 QvDatabaseCompand_1_1_t;
typedef struct QvDatabaseDeMosaic_2 QvDatabaseDeMosaic_2_t;
typedef struct QvDatabaseDefectPixelClusterCorrection QvDatabaseDefectPixelClusterCorrection_t;
typedef struct QvDatabaseDigitalGain QvDatabaseDigitalGain_t;
typedef struct QvDatabaseEdgeEnhance_2 QvDatabaseEdgeEnhance_2_t;
typedef struct QvDatabaseGammaCorrection_2 QvDatabaseGammaCorrection_2_t;
typedef struct QvDatabaseGreenEquilibration QvDatabaseGreenEquilibration_t;
typedef struct QvDatabaseHighDynamicRange_2_1 QvDatabaseHighDynamicRange_2_1_t;
typedef struct QvDatabaseHistogram_2 QvDatabaseHistogram_2_t;
typedef struct QvDatabaseHistogram QvDatabaseHistogram_t;
typedef struct QvDatabaseIsp QvDatabaseIsp_t;
typedef struct QvDatabaseLensShadingCorrection_4 QvDatabaseLensShadingCorrection_4_t;
typedef struct QvDatabaseMetaDriver QvDatabaseMetaDriver_t;
typedef struct QvDatabaseMeta QvDatabaseMeta_t;
typedef struct QvDatabaseMisc QvDatabaseMisc_t;
typedef struct QvDatabaseRgbInfraredRadiation_1_1 QvDatabaseRgbInfraredRadiation_1_1_t;
typedef struct QvDatabaseSensor QvDatabaseSensor_t;
typedef struct QvDatabaseWhiteBalance_1_1 QvDatabaseWhiteBalance_1_1_t;
typedef struct QvDatabaseWideDynamicRange_5_2_1 QvDatabaseWideDynamicRange_5_2_1_t;

/** Reads a whole document: walks the array under `root` of the top-level object pValue. An element that fails is traced
    and passed over, an unknown class is ignored. 13 for a zero handle or a null value, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue);
/** Writes a whole document: adds `root` with its 19 class objects and the driver object to the top-level object pValue.
    13 for a zero handle or a null value, else the first status that is not 0; what was added until then stays. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue);

/* Elements of `root`, named by their member `classname`. */

/** Class "A2dnrv5_1", category `A2DNR_5_2`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2_serialize(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Class "A3dnrv1", category `A3DNR_2_1`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1_serialize(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Class "AdaptiveAe", category `AE_3`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoExposure_3_parse(QvJsonValue_t* pValue,
                                                                     QvDatabaseAutoExposure_3_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoExposure_3_serialize(QvDatabaseAutoExposure_3_t* pConfig,
                                                                         QvJsonValue_t* pValue);
/** Class "ABls", category `ABLS`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoBlackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseAutoBlackLevelSubtraction_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoBlackLevelSubtraction_serialize(QvDatabaseAutoBlackLevelSubtraction_t* pConfig,
                                                                QvJsonValue_t* pValue);
/** Class "Accm", category `ACCM_1_1`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                                QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1_serialize(QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig,
                                                                    QvJsonValue_t* pValue);
/** Class "ACnrv2", category `ACNR_2_2`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2_serialize(QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig,
                                                                  QvJsonValue_t* pValue);
/** Class "ACproc", category `ACP_1_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoColorProcess_1_2_parse(QvJsonValue_t* pValue,
                                                                           QvDatabaseAutoColorProcess_1_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoColorProcess_1_2_serialize(QvDatabaseAutoColorProcess_1_2_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Class "ADpcc", category `ADPCC`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection_parse(
    QvJsonValue_t* pValue, QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection_serialize(
    QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig, QvJsonValue_t* pValue);
/** Class "ADmscv2", category `ADMSC_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDeMosaic_2_parse(QvJsonValue_t* pValue,
                                                                     QvDatabaseAutoDeMosaic_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDeMosaic_2_serialize(QvDatabaseAutoDeMosaic_2_t* pConfig,
                                                                         QvJsonValue_t* pValue);
/** Class "Aeev1", category `AEE_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoEdgeEnhance_2_parse(QvJsonValue_t* pValue,
                                                                        QvDatabaseAutoEdgeEnhance_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoEdgeEnhance_2_serialize(QvDatabaseAutoEdgeEnhance_2_t* pConfig,
                                                                            QvJsonValue_t* pValue);
/** Class "Af", category `AF_3`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoFocus_3_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseAutoFocus_3_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoFocus_3_serialize(QvDatabaseAutoFocus_3_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Class "AGamma64", category `AGC_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoGammaCorrection_2_parse(QvJsonValue_t* pValue,
                                                                            QvDatabaseAutoGammaCorrection_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoGammaCorrection_2_serialize(QvDatabaseAutoGammaCorrection_2_t* pConfig,
                                                            QvJsonValue_t* pValue);
/** Class "AGreenEqu", category `AGE`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoGreenEquilibration_parse(QvJsonValue_t* pValue,
                                                         QvDatabaseAutoGreenEquilibration_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoGreenEquilibration_serialize(QvDatabaseAutoGreenEquilibration_t* pConfig,
                                                             QvJsonValue_t* pValue);
/** Class "ALscv2", category `ALSC_4`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoLensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseAutoLensShadingCorrection_4_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoLensShadingCorrection_4_serialize(QvDatabaseAutoLensShadingCorrection_4_t* pConfig,
                                                                  QvJsonValue_t* pValue);
/** Class "Awbv2", category `AWB_3`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWhiteBalance_3_parse(QvJsonValue_t* pValue,
                                                                         QvDatabaseAutoWhiteBalance_3_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWhiteBalance_3_serialize(QvDatabaseAutoWhiteBalance_3_t* pConfig,
                                                                             QvJsonValue_t* pValue);
/** Class "AWdrv511", category `AWDR_5_2_1`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1_serialize(QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig,
                                                                 QvJsonValue_t* pValue);
/** Class "AutoWorkMode", category `AWM`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWorkMode_parse(QvJsonValue_t* pValue,
                                                                   QvDatabaseAutoWorkMode_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWorkMode_serialize(QvDatabaseAutoWorkMode_t* pConfig,
                                                                       QvJsonValue_t* pValue);
/** Class "IspController", category `ISP`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_isp_parse(QvJsonValue_t* pValue, QvDatabaseIsp_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_isp_serialize(QvDatabaseIsp_t* pConfig, QvJsonValue_t* pValue);
/** Class "SensorController", category `SS`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_sensor_parse(QvJsonValue_t* pValue, QvDatabaseSensor_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_sensor_serialize(QvDatabaseSensor_t* pConfig, QvJsonValue_t* pValue);

/* Elements of `driver` in the driver object, named by their member `class`. */

/** Class "C2dnrv5_1", category `2DNR_5_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                                           QvDatabase2DNoiseReduction_5_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_2DNoiseReduction_5_2_serialize(QvDatabase2DNoiseReduction_5_2_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Class "C3Av2Interface", category `3AI_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_3AInterface_2_parse(QvJsonValue_t* pValue,
                                                                    QvDatabase3AInterface_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_3AInterface_2_serialize(QvDatabase3AInterface_2_t* pConfig,
                                                                        QvJsonValue_t* pValue);
/** Class "C3dnrv1", category `3DNR_2_1`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                                           QvDatabase3DNoiseReduction_2_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_3DNoiseReduction_2_1_serialize(QvDatabase3DNoiseReduction_2_1_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Class "ExpV2", category `AES_2`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoExposureStatistics_2_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAutoExposureStatistics_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoExposureStatistics_2_serialize(QvDatabaseAutoExposureStatistics_2_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Class "Afmv1", category `AFM`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoFocusMeasurement_parse(QvJsonValue_t* pValue,
                                                                           QvDatabaseAutoFocusMeasurement_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoFocusMeasurement_serialize(QvDatabaseAutoFocusMeasurement_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Class "Bls", category `BLS`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_blackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                                            QvDatabaseBlackLevelSubtraction_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_blackLevelSubtraction_serialize(QvDatabaseBlackLevelSubtraction_t* pConfig,
                                                            QvJsonValue_t* pValue);
/** Class "CCcm", category `CCM_1_1`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseColorCorrectionMatrix_1_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1_serialize(QvDatabaseColorCorrectionMatrix_1_1_t* pConfig,
                                                                QvJsonValue_t* pValue);
/** Class "CCnrv2_opt", category `CNR_2_2`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                          QvDatabaseColorNoiseReduction_2_2_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorNoiseReduction_2_2_serialize(QvDatabaseColorNoiseReduction_2_2_t* pConfig,
                                                              QvJsonValue_t* pValue);
/** Class "CCproc", category `CP_1_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_colorProcess_1_2_parse(QvJsonValue_t* pValue,
                                                                       QvDatabaseColorProcess_1_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_colorProcess_1_2_serialize(QvDatabaseColorProcess_1_2_t* pConfig,
                                                                           QvJsonValue_t* pValue);
/** Class "CCpdv1", category `CPD_1_1`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_compand_1_1_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseCompand_1_1_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_compand_1_1_serialize(QvDatabaseCompand_1_1_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Class "CDpcc", category `DPCC`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_defectPixelClusterCorrection_parse(QvJsonValue_t* pValue,
                                                               QvDatabaseDefectPixelClusterCorrection_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_defectPixelClusterCorrection_serialize(QvDatabaseDefectPixelClusterCorrection_t* pConfig,
                                                                   QvJsonValue_t* pValue);
/** Class "CDmscv2", category `DMSC_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_deMosaic_2_parse(QvJsonValue_t* pValue,
                                                                 QvDatabaseDeMosaic_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_deMosaic_2_serialize(QvDatabaseDeMosaic_2_t* pConfig,
                                                                     QvJsonValue_t* pValue);
/** Class "CDgain", category `DG`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_digitalGain_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseDigitalGain_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_digitalGain_serialize(QvDatabaseDigitalGain_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Class "CEEv1", category `EE_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_edgeEnhance_2_parse(QvJsonValue_t* pValue,
                                                                    QvDatabaseEdgeEnhance_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_edgeEnhance_2_serialize(QvDatabaseEdgeEnhance_2_t* pConfig,
                                                                        QvJsonValue_t* pValue);
/** Class "CGamma64", category `GC_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_gammaCorrection_2_parse(QvJsonValue_t* pValue,
                                                                        QvDatabaseGammaCorrection_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_gammaCorrection_2_serialize(QvDatabaseGammaCorrection_2_t* pConfig,
                                                                            QvJsonValue_t* pValue);
/** Class "CGreenEqu", category `GE`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_greenEquilibration_parse(QvJsonValue_t* pValue,
                                                                         QvDatabaseGreenEquilibration_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_greenEquilibration_serialize(QvDatabaseGreenEquilibration_t* pConfig,
                                                                             QvJsonValue_t* pValue);
/** Class "CHdrv2", category `HDR_2_1`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_highDynamicRange_2_1_parse(QvJsonValue_t* pValue,
                                                                           QvDatabaseHighDynamicRange_2_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_highDynamicRange_2_1_serialize(QvDatabaseHighDynamicRange_2_1_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Class "Hist64", category `HTG`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_serialize(QvDatabaseHistogram_t* pConfig,
                                                                    QvJsonValue_t* pValue);
/** Class "Hist256", category `HTG_2`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_2_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseHistogram_2_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_2_serialize(QvDatabaseHistogram_2_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Class "CLscv2", category `LSC_4`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_lensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                          QvDatabaseLensShadingCorrection_4_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_lensShadingCorrection_4_serialize(QvDatabaseLensShadingCorrection_4_t* pConfig,
                                                              QvJsonValue_t* pValue);
/** Class "CRgbIR", category `RGBIR_1_1`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseRgbInfraredRadiation_1_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1_serialize(QvDatabaseRgbInfraredRadiation_1_1_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Class "CManualWb", category `WB_1_1`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_whiteBalance_1_1_parse(QvJsonValue_t* pValue,
                                                                       QvDatabaseWhiteBalance_1_1_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_whiteBalance_1_1_serialize(QvDatabaseWhiteBalance_1_1_t* pConfig,
                                                                           QvJsonValue_t* pValue);
/** Class "CWdrv5_1", category `WDR_5_2_1`. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1_parse(QvJsonValue_t* pValue,
                                                         QvDatabaseWideDynamicRange_5_2_1_t* pConfig);
QV_DATABASE_API int
QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1_serialize(QvDatabaseWideDynamicRange_5_2_1_t* pConfig,
                                                             QvJsonValue_t* pValue);

/* Members of the driver object itself. */

/** Two switches of category `MISC`. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_misc_parse(QvJsonValue_t* pValue, QvDatabaseMisc_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_misc_serialize(QvDatabaseMisc_t* pConfig, QvJsonValue_t* pValue);
/** Category `MD`: frames in, files out. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_metaDriver_parse(QvJsonValue_t* pValue,
                                                                 QvDatabaseMetaDriver_t* pConfig);
QV_DATABASE_API int QvDatabaseProtocolSimulator_metaDriver_serialize(QvDatabaseMetaDriver_t* pConfig,
                                                                     QvJsonValue_t* pValue);

/* The simulator form of frame metadata, a document of its own: the object at "root/metadata". */

/** Reads three fields of category `MT` from the document pValue. 13 for a null argument; 2, without a trace, when the
    document has nothing at "root/metadata" and so is of the plain form; else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_meta_parse(QvJsonValue_t* pValue, QvDatabaseMeta_t* pConfig);
/** Writes them into the document pValue, making the path. 13 for a null argument, else 0 or a status of the path. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_meta_serialize(QvDatabaseMeta_t* pConfig, QvJsonValue_t* pValue);

#ifdef __cplusplus
}
#endif

#endif
