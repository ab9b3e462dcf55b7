/** @file
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

/** @cond */
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
/** @endcond */

/** Reads a whole document: walks the array under `root` of the top-level object pValue. An element that fails is traced
    and passed over, an unknown class is ignored. 13 for a zero handle or a null value, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue);
/** Writes a whole document: adds `root` with its 19 class objects and the driver object to the top-level object pValue.
    13 for a zero handle or a null value, else the first status that is not 0; what was added until then stays. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue);

/* Elements of `root`, named by their member `classname`. */

/** Reads class "A2dnrv5_1" into the record of `A2DNR_5_2`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig);
/** Adds the members of class "A2dnrv5_1" from the record. 13 for null; 5 without memory, what was added stays; else
    0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2_serialize(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Reads class "A3dnrv1" into the record of `A3DNR_2_1`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig);
/** Adds the members of class "A3dnrv1" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1_serialize(QvDatabaseAuto3DNoiseReduction_2_1_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Reads class "AdaptiveAe" into the record of `AE_3`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoExposure_3_parse(QvJsonValue_t* pValue,
                                                                     QvDatabaseAutoExposure_3_t* pConfig);
/** Adds the members of class "AdaptiveAe" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoExposure_3_serialize(QvDatabaseAutoExposure_3_t* pConfig,
                                                                         QvJsonValue_t* pValue);
/** Reads class "ABls" into the record of `ABLS`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoBlackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseAutoBlackLevelSubtraction_t* pConfig);
/** Adds the members of class "ABls" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoBlackLevelSubtraction_serialize(QvDatabaseAutoBlackLevelSubtraction_t* pConfig,
                                                                QvJsonValue_t* pValue);
/** Reads class "Accm" into the record of `ACCM_1_1`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                                QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig);
/** Adds the members of class "Accm" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1_serialize(QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig,
                                                                    QvJsonValue_t* pValue);
/** Reads class "ACnrv2" into the record of `ACNR_2_2`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig);
/** Adds the members of class "ACnrv2" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2_serialize(QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig,
                                                                  QvJsonValue_t* pValue);
/** Reads class "ACproc" into the record of `ACP_1_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoColorProcess_1_2_parse(QvJsonValue_t* pValue,
                                                                           QvDatabaseAutoColorProcess_1_2_t* pConfig);
/** Adds the members of class "ACproc" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoColorProcess_1_2_serialize(QvDatabaseAutoColorProcess_1_2_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Reads class "ADpcc" into the record of `ADPCC`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection_parse(
    QvJsonValue_t* pValue, QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig);
/** Adds the members of class "ADpcc" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection_serialize(
    QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig, QvJsonValue_t* pValue);
/** Reads class "ADmscv2" into the record of `ADMSC_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDeMosaic_2_parse(QvJsonValue_t* pValue,
                                                                     QvDatabaseAutoDeMosaic_2_t* pConfig);
/** Adds the members of class "ADmscv2" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoDeMosaic_2_serialize(QvDatabaseAutoDeMosaic_2_t* pConfig,
                                                                         QvJsonValue_t* pValue);
/** Reads class "Aeev1" into the record of `AEE_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoEdgeEnhance_2_parse(QvJsonValue_t* pValue,
                                                                        QvDatabaseAutoEdgeEnhance_2_t* pConfig);
/** Adds the members of class "Aeev1" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoEdgeEnhance_2_serialize(QvDatabaseAutoEdgeEnhance_2_t* pConfig,
                                                                            QvJsonValue_t* pValue);
/** Reads class "Af" into the record of `AF_3`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoFocus_3_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseAutoFocus_3_t* pConfig);
/** Adds the members of class "Af" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoFocus_3_serialize(QvDatabaseAutoFocus_3_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Reads class "AGamma64" into the record of `AGC_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoGammaCorrection_2_parse(QvJsonValue_t* pValue,
                                                                            QvDatabaseAutoGammaCorrection_2_t* pConfig);
/** Adds the members of class "AGamma64" from the record. 13 for null; 5 without memory, what was added stays; else
    0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoGammaCorrection_2_serialize(QvDatabaseAutoGammaCorrection_2_t* pConfig,
                                                            QvJsonValue_t* pValue);
/** Reads class "AGreenEqu" into the record of `AGE`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoGreenEquilibration_parse(QvJsonValue_t* pValue,
                                                         QvDatabaseAutoGreenEquilibration_t* pConfig);
/** Adds the members of class "AGreenEqu" from the record. 13 for null; 5 without memory, what was added stays; else
    0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoGreenEquilibration_serialize(QvDatabaseAutoGreenEquilibration_t* pConfig,
                                                             QvJsonValue_t* pValue);
/** Reads class "ALscv2" into the record of `ALSC_4`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoLensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseAutoLensShadingCorrection_4_t* pConfig);
/** Adds the members of class "ALscv2" from the record. 13 for null; 5 without memory, what was added stays; else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoLensShadingCorrection_4_serialize(QvDatabaseAutoLensShadingCorrection_4_t* pConfig,
                                                                  QvJsonValue_t* pValue);
/** Reads class "Awbv2" into the record of `AWB_3`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWhiteBalance_3_parse(QvJsonValue_t* pValue,
                                                                         QvDatabaseAutoWhiteBalance_3_t* pConfig);
/** Adds the members of class "Awbv2" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWhiteBalance_3_serialize(QvDatabaseAutoWhiteBalance_3_t* pConfig,
                                                                             QvJsonValue_t* pValue);
/** Reads class "AWdrv511" into the record of `AWDR_5_2_1`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1_parse(QvJsonValue_t* pValue,
                                                             QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig);
/** Adds the members of class "AWdrv511" from the record. 13 for null; 5 without memory, what was added stays; else
    0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1_serialize(QvDatabaseAutoWideDynamicRange_5_2_1_t* pConfig,
                                                                 QvJsonValue_t* pValue);
/** Reads class "AutoWorkMode" into the record of `AWM`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWorkMode_parse(QvJsonValue_t* pValue,
                                                                   QvDatabaseAutoWorkMode_t* pConfig);
/** Adds the members of class "AutoWorkMode" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoWorkMode_serialize(QvDatabaseAutoWorkMode_t* pConfig,
                                                                       QvJsonValue_t* pValue);
/** Reads class "IspController" into the record of `ISP`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_isp_parse(QvJsonValue_t* pValue, QvDatabaseIsp_t* pConfig);
/** Adds the members of class "IspController" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_isp_serialize(QvDatabaseIsp_t* pConfig, QvJsonValue_t* pValue);
/** Reads class "SensorController" into the record of `SS`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_sensor_parse(QvJsonValue_t* pValue, QvDatabaseSensor_t* pConfig);
/** Adds the members of class "SensorController" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_sensor_serialize(QvDatabaseSensor_t* pConfig, QvJsonValue_t* pValue);

/* Elements of `driver` in the driver object, named by their member `class`. */

/** Reads class "C2dnrv5_1" into the record of `2DNR_5_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                                           QvDatabase2DNoiseReduction_5_2_t* pConfig);
/** Adds the members of class "C2dnrv5_1" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_2DNoiseReduction_5_2_serialize(QvDatabase2DNoiseReduction_5_2_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Reads class "C3Av2Interface" into the record of `3AI_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_3AInterface_2_parse(QvJsonValue_t* pValue,
                                                                    QvDatabase3AInterface_2_t* pConfig);
/** Adds the members of class "C3Av2Interface" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_3AInterface_2_serialize(QvDatabase3AInterface_2_t* pConfig,
                                                                        QvJsonValue_t* pValue);
/** Reads class "C3dnrv1" into the record of `3DNR_2_1`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_3DNoiseReduction_2_1_parse(QvJsonValue_t* pValue,
                                                                           QvDatabase3DNoiseReduction_2_1_t* pConfig);
/** Adds the members of class "C3dnrv1" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_3DNoiseReduction_2_1_serialize(QvDatabase3DNoiseReduction_2_1_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Reads class "ExpV2" into the record of `AES_2`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoExposureStatistics_2_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAutoExposureStatistics_2_t* pConfig);
/** Adds the members of class "ExpV2" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoExposureStatistics_2_serialize(QvDatabaseAutoExposureStatistics_2_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Reads class "Afmv1" into the record of `AFM`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_autoFocusMeasurement_parse(QvJsonValue_t* pValue,
                                                                           QvDatabaseAutoFocusMeasurement_t* pConfig);
/** Adds the members of class "Afmv1" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_autoFocusMeasurement_serialize(QvDatabaseAutoFocusMeasurement_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Reads class "Bls" into the record of `BLS`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_blackLevelSubtraction_parse(QvJsonValue_t* pValue,
                                                                            QvDatabaseBlackLevelSubtraction_t* pConfig);
/** Adds the members of class "Bls" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_blackLevelSubtraction_serialize(QvDatabaseBlackLevelSubtraction_t* pConfig,
                                                            QvJsonValue_t* pValue);
/** Reads class "CCcm" into the record of `CCM_1_1`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseColorCorrectionMatrix_1_1_t* pConfig);
/** Adds the members of class "CCcm" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1_serialize(QvDatabaseColorCorrectionMatrix_1_1_t* pConfig,
                                                                QvJsonValue_t* pValue);
/** Reads class "CCnrv2_opt" into the record of `CNR_2_2`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                          QvDatabaseColorNoiseReduction_2_2_t* pConfig);
/** Adds the members of class "CCnrv2_opt" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_colorNoiseReduction_2_2_serialize(QvDatabaseColorNoiseReduction_2_2_t* pConfig,
                                                              QvJsonValue_t* pValue);
/** Reads class "CCproc" into the record of `CP_1_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_colorProcess_1_2_parse(QvJsonValue_t* pValue,
                                                                       QvDatabaseColorProcess_1_2_t* pConfig);
/** Adds the members of class "CCproc" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_colorProcess_1_2_serialize(QvDatabaseColorProcess_1_2_t* pConfig,
                                                                           QvJsonValue_t* pValue);
/** Reads class "CCpdv1" into the record of `CPD_1_1`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_compand_1_1_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseCompand_1_1_t* pConfig);
/** Adds the members of class "CCpdv1" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_compand_1_1_serialize(QvDatabaseCompand_1_1_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Reads class "CDpcc" into the record of `DPCC`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_defectPixelClusterCorrection_parse(QvJsonValue_t* pValue,
                                                               QvDatabaseDefectPixelClusterCorrection_t* pConfig);
/** Adds the members of class "CDpcc" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_defectPixelClusterCorrection_serialize(QvDatabaseDefectPixelClusterCorrection_t* pConfig,
                                                                   QvJsonValue_t* pValue);
/** Reads class "CDmscv2" into the record of `DMSC_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_deMosaic_2_parse(QvJsonValue_t* pValue,
                                                                 QvDatabaseDeMosaic_2_t* pConfig);
/** Adds the members of class "CDmscv2" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_deMosaic_2_serialize(QvDatabaseDeMosaic_2_t* pConfig,
                                                                     QvJsonValue_t* pValue);
/** Reads class "CDgain" into the record of `DG`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_digitalGain_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseDigitalGain_t* pConfig);
/** Adds the members of class "CDgain" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_digitalGain_serialize(QvDatabaseDigitalGain_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Reads class "CEEv1" into the record of `EE_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_edgeEnhance_2_parse(QvJsonValue_t* pValue,
                                                                    QvDatabaseEdgeEnhance_2_t* pConfig);
/** Adds the members of class "CEEv1" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_edgeEnhance_2_serialize(QvDatabaseEdgeEnhance_2_t* pConfig,
                                                                        QvJsonValue_t* pValue);
/** Reads class "CGamma64" into the record of `GC_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_gammaCorrection_2_parse(QvJsonValue_t* pValue,
                                                                        QvDatabaseGammaCorrection_2_t* pConfig);
/** Adds the members of class "CGamma64" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_gammaCorrection_2_serialize(QvDatabaseGammaCorrection_2_t* pConfig,
                                                                            QvJsonValue_t* pValue);
/** Reads class "CGreenEqu" into the record of `GE`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_greenEquilibration_parse(QvJsonValue_t* pValue,
                                                                         QvDatabaseGreenEquilibration_t* pConfig);
/** Adds the members of class "CGreenEqu" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_greenEquilibration_serialize(QvDatabaseGreenEquilibration_t* pConfig,
                                                                             QvJsonValue_t* pValue);
/** Reads class "CHdrv2" into the record of `HDR_2_1`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_highDynamicRange_2_1_parse(QvJsonValue_t* pValue,
                                                                           QvDatabaseHighDynamicRange_2_1_t* pConfig);
/** Adds the members of class "CHdrv2" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_highDynamicRange_2_1_serialize(QvDatabaseHighDynamicRange_2_1_t* pConfig,
                                                           QvJsonValue_t* pValue);
/** Reads class "Hist64" into the record of `HTG`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_parse(QvJsonValue_t* pValue, QvDatabaseHistogram_t* pConfig);
/** Adds the members of class "Hist64" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_serialize(QvDatabaseHistogram_t* pConfig,
                                                                    QvJsonValue_t* pValue);
/** Reads class "Hist256" into the record of `HTG_2`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_2_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseHistogram_2_t* pConfig);
/** Adds the members of class "Hist256" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_histogram_2_serialize(QvDatabaseHistogram_2_t* pConfig,
                                                                      QvJsonValue_t* pValue);
/** Reads class "CLscv2" into the record of `LSC_4`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_lensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                          QvDatabaseLensShadingCorrection_4_t* pConfig);
/** Adds the members of class "CLscv2" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_lensShadingCorrection_4_serialize(QvDatabaseLensShadingCorrection_4_t* pConfig,
                                                              QvJsonValue_t* pValue);
/** Reads class "CRgbIR" into the record of `RGBIR_1_1`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseRgbInfraredRadiation_1_1_t* pConfig);
/** Adds the members of class "CRgbIR" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1_serialize(QvDatabaseRgbInfraredRadiation_1_1_t* pConfig,
                                                               QvJsonValue_t* pValue);
/** Reads class "CManualWb" into the record of `WB_1_1`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_whiteBalance_1_1_parse(QvJsonValue_t* pValue,
                                                                       QvDatabaseWhiteBalance_1_1_t* pConfig);
/** Adds the members of class "CManualWb" from the record. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_whiteBalance_1_1_serialize(QvDatabaseWhiteBalance_1_1_t* pConfig,
                                                                           QvJsonValue_t* pValue);
/** Reads class "CWdrv5_1" into the record of `WDR_5_2_1`. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1_parse(QvJsonValue_t* pValue,
                                                         QvDatabaseWideDynamicRange_5_2_1_t* pConfig);
/** Adds the members of class "CWdrv5_1" from the record. 13 for null, else 0. */
QV_DATABASE_API int
QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1_serialize(QvDatabaseWideDynamicRange_5_2_1_t* pConfig,
                                                             QvJsonValue_t* pValue);

/* Members of the driver object itself. */

/** Reads the two switches of category `MISC`. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_misc_parse(QvJsonValue_t* pValue, QvDatabaseMisc_t* pConfig);
/** Adds them to the driver object. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_misc_serialize(QvDatabaseMisc_t* pConfig, QvJsonValue_t* pValue);
/** Reads category `MD`: frames in, files out. 13 for null, else 0. */
QV_DATABASE_API int QvDatabaseProtocolSimulator_metaDriver_parse(QvJsonValue_t* pValue,
                                                                 QvDatabaseMetaDriver_t* pConfig);
/** Adds them to the driver object. 13 for null, else 0. */
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
