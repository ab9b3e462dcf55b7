/// @file
/// The keys of the categories, by the types of their records. Made by list_keys from the library's list:
/// build/release/bin/list_keys > include/qv_database_c/database_keys.hpp
#ifndef QV_DATABASE_C_DATABASE_KEYS_HPP
#define QV_DATABASE_C_DATABASE_KEYS_HPP

#include <qv_database_c/database_records.h>

namespace qv {

/// The key of the category that holds a record of this type; null where none does.
template <class Record>
inline constexpr const char* keyOf = nullptr;

/** @cond */
template <>
inline constexpr const char* keyOf<QvDatabaseCalibration_t> = "CLB";
template <>
inline constexpr const char* keyOf<QvDatabase2DNoiseReduction_5_2_t> = "2DNR_5_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAuto2DNoiseReduction_5_2_t> = "A2DNR_5_2";
template <>
inline constexpr const char* keyOf<QvDatabase3AInterface_2_t> = "3AI_2";
template <>
inline constexpr const char* keyOf<QvDatabase3DNoiseReduction_2_1_t> = "3DNR_2_1";
template <>
inline constexpr const char* keyOf<QvDatabaseAuto3DNoiseReduction_2_1_t> = "A3DNR_2_1";
template <>
inline constexpr const char* keyOf<QvDatabaseBlackLevelSubtraction_t> = "BLS";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoBlackLevelSubtraction_t> = "ABLS";
template <>
inline constexpr const char* keyOf<QvDatabaseCModel_t> = "C_MODEL";
template <>
inline constexpr const char* keyOf<QvDatabaseColorCorrectionMatrix_1_1_t> = "CCM_1_1";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoColorCorrectionMatrix_1_1_t> = "ACCM_1_1";
template <>
inline constexpr const char* keyOf<QvDatabaseColorNoiseReduction_2_2_t> = "CNR_2_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoColorNoiseReduction_2_2_t> = "ACNR_2_2";
template <>
inline constexpr const char* keyOf<QvDatabaseColorProcess_1_2_t> = "CP_1_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoColorProcess_1_2_t> = "ACP_1_2";
template <>
inline constexpr const char* keyOf<QvDatabaseCompand_1_1_t> = "CPD_1_1";
template <>
inline constexpr const char* keyOf<QvDatabaseDefectPixelClusterCorrection_t> = "DPCC";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoDefectPixelClusterCorrection_t> = "ADPCC";
template <>
inline constexpr const char* keyOf<QvDatabaseDeMosaic_2_t> = "DMSC_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoDeMosaic_2_t> = "ADMSC_2";
template <>
inline constexpr const char* keyOf<QvDatabaseDevice_t> = "DVC";
template <>
inline constexpr const char* keyOf<QvDatabaseDigitalGain_t> = "DG";
template <>
inline constexpr const char* keyOf<QvDatabaseDump_t> = "DUMP";
template <>
inline constexpr const char* keyOf<QvDatabaseEdgeEnhance_2_t> = "EE_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoEdgeEnhance_2_t> = "AEE_2";
template <>
inline constexpr const char* keyOf<QvDatabaseExposureControl_2_t> = "EC_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoExposure_3_t> = "AE_3";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoExposureStatistics_2_t> = "AES_2";
template <>
inline constexpr const char* keyOf<QvDatabaseRam_t> = "RAM";
template <>
inline constexpr const char* keyOf<QvDatabaseFocusControl_t> = "FC";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoFocusMeasurement_t> = "AFM";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoFocus_3_t> = "AF_3";
template <>
inline constexpr const char* keyOf<QvDatabaseGammaCorrection_2_t> = "GC_2";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoGammaCorrection_2_t> = "AGC_2";
template <>
inline constexpr const char* keyOf<QvDatabaseGreenEquilibration_t> = "GE";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoGreenEquilibration_t> = "AGE";
template <>
inline constexpr const char* keyOf<QvDatabaseHighDynamicRange_2_1_t> = "HDR_2_1";
template <>
inline constexpr const char* keyOf<QvDatabaseHistogram_t> = "HTG";
template <>
inline constexpr const char* keyOf<QvDatabaseHistogram_2_t> = "HTG_2";
template <>
inline constexpr const char* keyOf<QvDatabaseInput_t> = "IPT";
template <>
inline constexpr const char* keyOf<QvDatabaseIsp_t> = "ISP";
template <>
inline constexpr const char* keyOf<QvDatabaseLensShadingCorrection_4_t> = "LSC_4";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoLensShadingCorrection_4_t> = "ALSC_4";
template <>
inline constexpr const char* keyOf<QvDatabaseMeta_t> = "MT";
template <>
inline constexpr const char* keyOf<QvDatabaseMisc_t> = "MISC";
template <>
inline constexpr const char* keyOf<QvDatabaseMetaDriver_t> = "MD";
template <>
inline constexpr const char* keyOf<QvDatabaseOutput_t> = "OPT";
template <>
inline constexpr const char* keyOf<QvDatabaseRegister_t> = "RGT";
template <>
inline constexpr const char* keyOf<QvDatabaseRgbInfraredRadiation_1_1_t> = "RGBIR_1_1";
template <>
inline constexpr const char* keyOf<QvDatabaseSensor_t> = "SS";
template <>
inline constexpr const char* keyOf<QvDatabaseSetting_t> = "ST";
template <>
inline constexpr const char* keyOf<QvDatabaseTile_t> = "TL";
template <>
inline constexpr const char* keyOf<QvDatabaseTransmit_t> = "TM";
template <>
inline constexpr const char* keyOf<QvDatabaseWhiteBalance_1_1_t> = "WB_1_1";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoWorkMode_t> = "AWM";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoWhiteBalance_3_t> = "AWB_3";
template <>
inline constexpr const char* keyOf<QvDatabaseWideDynamicRange_5_2_1_t> = "WDR_5_2_1";
template <>
inline constexpr const char* keyOf<QvDatabaseAutoWideDynamicRange_5_2_1_t> = "AWDR_5_2_1";
/** @endcond */

} // namespace qv

#endif
