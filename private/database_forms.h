#pragma once

// Every table there is, by the document it belongs to. A table is defined in the source of its record or codec; whoever
// wants to walk the forms as data (to list, check or compare them) begins at forms().

#include <cstdint>
#include <span>

#include <qv_database_c/database_2d_noise_reduction_5_2.h>
#include <qv_database_c/database_3a_interface_2.h>
#include <qv_database_c/database_3d_noise_reduction_2_1.h>
#include <qv_database_c/database_auto_2d_noise_reduction_5_2.h>
#include <qv_database_c/database_auto_3d_noise_reduction_2_1.h>
#include <qv_database_c/database_auto_black_level_subtraction.h>
#include <qv_database_c/database_auto_color_correction_matrix_1_1.h>
#include <qv_database_c/database_auto_color_noise_reduction_2_2.h>
#include <qv_database_c/database_auto_color_process_1_2.h>
#include <qv_database_c/database_auto_defect_pixel_cluster_correction.h>
#include <qv_database_c/database_auto_demosaic_2.h>
#include <qv_database_c/database_auto_edge_enhance_2.h>
#include <qv_database_c/database_auto_exposure_3.h>
#include <qv_database_c/database_auto_exposure_statistics_2.h>
#include <qv_database_c/database_auto_focus_3.h>
#include <qv_database_c/database_auto_focus_measurement.h>
#include <qv_database_c/database_auto_gamma_correction_2.h>
#include <qv_database_c/database_auto_green_equilibration.h>
#include <qv_database_c/database_auto_lens_shading_correction_4.h>
#include <qv_database_c/database_auto_white_balance_3.h>
#include <qv_database_c/database_auto_wide_dynamic_range_5_2_1.h>
#include <qv_database_c/database_auto_work_mode.h>
#include <qv_database_c/database_base.h>
#include <qv_database_c/database_black_level_subtraction.h>
#include <qv_database_c/database_c_model.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/database_color_noise_reduction_2_2.h>
#include <qv_database_c/database_color_process_1_2.h>
#include <qv_database_c/database_compand_1_1.h>
#include <qv_database_c/database_defect_pixel_cluster_correction.h>
#include <qv_database_c/database_demosaic_2.h>
#include <qv_database_c/database_device.h>
#include <qv_database_c/database_digital_gain.h>
#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_edge_enhance_2.h>
#include <qv_database_c/database_exposure_control_2.h>
#include <qv_database_c/database_focus_control.h>
#include <qv_database_c/database_gamma_correction_2.h>
#include <qv_database_c/database_green_equilibration.h>
#include <qv_database_c/database_high_dynamic_range_2_1.h>
#include <qv_database_c/database_histogram.h>
#include <qv_database_c/database_histogram_2.h>
#include <qv_database_c/database_input.h>
#include <qv_database_c/database_isp.h>
#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_meta_driver.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_output.h>
#include <qv_database_c/database_ram.h>
#include <qv_database_c/database_register.h>
#include <qv_database_c/database_rgb_infrared_radiation_1_1.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_tile.h>
#include <qv_database_c/database_transmit.h>
#include <qv_database_c/database_white_balance_1_1.h>
#include <qv_database_c/database_wide_dynamic_range_5_2_1.h>

#include "database_field.h"

namespace qv::database {

namespace tuning {
extern const TableOf<QvDatabaseGain_t> kGain;
extern const TableOf<QvDatabasePoint_t> kPoint;
extern const TableOf<QvDatabaseRange_t> kRange;
extern const TableOf<QvDatabaseRectangle_t> kRectangle;
extern const TableOf<QvDatabase2DNoiseReduction_5_2_t> k2DNoiseReduction_5_2;
extern const TableOf<QvDatabaseAuto2DNoiseReduction_5_2_t> kAuto2DNoiseReduction_5_2;
extern const TableOf<QvDatabase3DNoiseReduction_2_1_t> k3DNoiseReduction_2_1;
extern const TableOf<QvDatabaseAuto3DNoiseReduction_2_1_t> kAuto3DNoiseReduction_2_1;
extern const TableOf<QvDatabaseBlackLevelSubtraction_t> kBlackLevelSubtraction;
extern const TableOf<QvDatabaseAutoBlackLevelSubtraction_t> kAutoBlackLevelSubtraction;
extern const TableOf<QvDatabaseCModel_t> kCModel;
extern const TableOf<QvDatabaseColorCorrectionMatrix_1_1_t> kColorCorrectionMatrix_1_1;
extern const TableOf<QvDatabaseAutoColorCorrectionMatrix_1_1_t> kAutoColorCorrectionMatrix_1_1;
extern const TableOf<QvDatabaseColorNoiseReduction_2_2_t> kColorNoiseReduction_2_2;
extern const TableOf<QvDatabaseAutoColorNoiseReduction_2_2_t> kAutoColorNoiseReduction_2_2;
extern const TableOf<QvDatabaseColorProcess_1_2_t> kColorProcess_1_2;
extern const TableOf<QvDatabaseAutoColorProcess_1_2_t> kAutoColorProcess_1_2;
extern const TableOf<QvDatabaseCompand_1_1_t> kCompand_1_1;
extern const TableOf<QvDatabaseDefectPixelClusterCorrection_t> kDefectPixelClusterCorrection;
extern const TableOf<QvDatabaseAutoDefectPixelClusterCorrection_t> kAutoDefectPixelClusterCorrection;
extern const TableOf<QvDatabaseDeMosaic_2_t> kDeMosaic_2;
extern const TableOf<QvDatabaseAutoDeMosaic_2_t> kAutoDeMosaic_2;
extern const TableOf<QvDatabaseDevice_t> kDevice;
extern const TableOf<QvDatabaseDigitalGain_t> kDigitalGain;
extern const TableOf<QvDatabaseDump_t> kDump;
extern const TableOf<QvDatabaseEdgeEnhance_2_t> kEdgeEnhance_2;
extern const TableOf<QvDatabaseAutoEdgeEnhance_2_t> kAutoEdgeEnhance_2;
extern const TableOf<QvDatabaseExposureControl_2_t> kExposureControl_2;
extern const TableOf<QvDatabaseAutoExposure_3_t> kAutoExposure_3;
extern const TableOf<QvDatabaseAutoExposureStatistics_2_t> kAutoExposureStatistics_2;
extern const TableOf<QvDatabaseFocusControl_t> kFocusControl;
extern const TableOf<QvDatabaseAutoFocusMeasurement_t> kAutoFocusMeasurement;
extern const TableOf<QvDatabaseAutoFocus_3_t> kAutoFocus_3;
extern const TableOf<QvDatabaseGammaCorrection_2_t> kGammaCorrection_2;
extern const TableOf<QvDatabaseAutoGammaCorrection_2_t> kAutoGammaCorrection_2;
extern const TableOf<QvDatabaseGreenEquilibration_t> kGreenEquilibration;
extern const TableOf<QvDatabaseAutoGreenEquilibration_t> kAutoGreenEquilibration;
extern const TableOf<QvDatabaseHighDynamicRange_2_1_t> kHighDynamicRange_2_1;
extern const TableOf<QvDatabaseHistogram_t> kHistogram;
extern const TableOf<QvDatabaseHistogram_2_t> kHistogram_2;
extern const TableOf<QvDatabaseInput_t> kInput;
extern const TableOf<QvDatabaseLensShadingCorrection_4_t> kLensShadingCorrection_4;
extern const TableOf<QvDatabaseAutoLensShadingCorrection_4_t> kAutoLensShadingCorrection_4;
extern const TableOf<QvDatabaseMeta_t> kMeta;
extern const TableOf<QvDatabaseMisc_t> kMisc;
extern const TableOf<QvDatabaseOutput_t> kOutput;
extern const TableOf<QvDatabaseRegister_t> kRegister;
extern const TableOf<QvDatabaseRgbInfraredRadiation_1_1_t> kRgbInfraredRadiation_1_1;
extern const TableOf<QvDatabaseSensor_t> kSensor;
extern const TableOf<QvDatabaseTile_t> kTile;
extern const TableOf<QvDatabaseTransmit_t> kTransmit;
extern const TableOf<QvDatabaseWhiteBalance_1_1_t> kWhiteBalance_1_1;
extern const TableOf<QvDatabaseAutoWorkMode_t> kAutoWorkMode;
extern const TableOf<QvDatabaseAutoWhiteBalance_3_t> kAutoWhiteBalance_3;
extern const TableOf<QvDatabaseWideDynamicRange_5_2_1_t> kWideDynamicRange_5_2_1;
extern const TableOf<QvDatabaseAutoWideDynamicRange_5_2_1_t> kAutoWideDynamicRange_5_2_1;

// Results of the hardware: written by functions of their own, never read.
extern const TableOf<QvDatabaseHistogram_t> kHistogramResults;
extern const TableOf<QvDatabaseHistogram_2_t> kHistogram_2Results;
extern const TableOf<QvDatabaseAutoExposureStatistics_2_t> kAutoExposureStatistics_2Results;
} // namespace tuning

namespace simulator {

/// A rectangle as the list of four numbers that stands in the document: x, y, width, height. Its elements have 16 bits
/// when read and 32 when written; the values are the same.
struct Windows {
    std::uint16_t read[4];
    std::uint32_t written[4];
};

extern const TableOf<Windows> kWindows;
extern const TableOf<QvDatabaseAuto2DNoiseReduction_5_2_t> kAuto2DNoiseReduction_5_2;
extern const TableOf<QvDatabaseAuto3DNoiseReduction_2_1_t> kAuto3DNoiseReduction_2_1;
extern const TableOf<QvDatabaseAutoExposure_3_t> kAutoExposure_3;
extern const TableOf<QvDatabaseAutoBlackLevelSubtraction_t> kAutoBlackLevelSubtraction;
extern const TableOf<QvDatabaseAutoColorCorrectionMatrix_1_1_t> kAutoColorCorrectionMatrix_1_1;
extern const TableOf<QvDatabaseAutoColorNoiseReduction_2_2_t> kAutoColorNoiseReduction_2_2;
extern const TableOf<QvDatabaseAutoColorProcess_1_2_t> kAutoColorProcess_1_2;
extern const TableOf<QvDatabaseAutoDefectPixelClusterCorrection_t> kAutoDefectPixelClusterCorrection;
extern const TableOf<QvDatabaseAutoDeMosaic_2_t> kAutoDeMosaic_2;
extern const TableOf<QvDatabaseAutoEdgeEnhance_2_t> kAutoEdgeEnhance_2;
extern const TableOf<QvDatabaseAutoFocus_3_t> kAutoFocus_3;
extern const TableOf<QvDatabaseAutoGammaCorrection_2_t> kAutoGammaCorrection_2;
extern const TableOf<QvDatabaseAutoGreenEquilibration_t> kAutoGreenEquilibration;
extern const TableOf<QvDatabaseAutoLensShadingCorrection_4_t> kAutoLensShadingCorrection_4;
extern const TableOf<QvDatabaseAutoWhiteBalance_3_t> kAutoWhiteBalance_3;
extern const TableOf<QvDatabaseAutoWideDynamicRange_5_2_1_t> kAutoWideDynamicRange_5_2_1;
extern const TableOf<QvDatabaseAutoWorkMode_t> kAutoWorkMode;
extern const TableOf<QvDatabaseIsp_t> kIsp;
extern const TableOf<QvDatabaseSensor_t> kSensor;
extern const TableOf<QvDatabase2DNoiseReduction_5_2_t> k2DNoiseReduction_5_2;
extern const TableOf<QvDatabase3AInterface_2_t> k3AInterface_2;
extern const TableOf<QvDatabase3DNoiseReduction_2_1_t> k3DNoiseReduction_2_1;
extern const TableOf<QvDatabaseAutoExposureStatistics_2_t> kAutoExposureStatistics_2;
extern const TableOf<QvDatabaseAutoFocusMeasurement_t> kAutoFocusMeasurement;
extern const TableOf<QvDatabaseBlackLevelSubtraction_t> kBlackLevelSubtraction;
extern const TableOf<QvDatabaseColorCorrectionMatrix_1_1_t> kColorCorrectionMatrix_1_1;
extern const TableOf<QvDatabaseColorNoiseReduction_2_2_t> kColorNoiseReduction_2_2;
extern const TableOf<QvDatabaseColorProcess_1_2_t> kColorProcess_1_2;
extern const TableOf<QvDatabaseCompand_1_1_t> kCompand_1_1;
extern const TableOf<QvDatabaseDefectPixelClusterCorrection_t> kDefectPixelClusterCorrection;
extern const TableOf<QvDatabaseDeMosaic_2_t> kDeMosaic_2;
extern const TableOf<QvDatabaseDigitalGain_t> kDigitalGain;
extern const TableOf<QvDatabaseEdgeEnhance_2_t> kEdgeEnhance_2;
extern const TableOf<QvDatabaseGammaCorrection_2_t> kGammaCorrection_2;
extern const TableOf<QvDatabaseGreenEquilibration_t> kGreenEquilibration;
extern const TableOf<QvDatabaseHighDynamicRange_2_1_t> kHighDynamicRange_2_1;
extern const TableOf<QvDatabaseHistogram_t> kHistogram;
extern const TableOf<QvDatabaseHistogram_2_t> kHistogram_2;
extern const TableOf<QvDatabaseLensShadingCorrection_4_t> kLensShadingCorrection_4;
extern const TableOf<QvDatabaseRgbInfraredRadiation_1_1_t> kRgbInfraredRadiation_1_1;
extern const TableOf<QvDatabaseWhiteBalance_1_1_t> kWhiteBalance_1_1;
extern const TableOf<QvDatabaseWideDynamicRange_5_2_1_t> kWideDynamicRange_5_2_1;
extern const TableOf<QvDatabaseMisc_t> kMisc;
extern const TableOf<QvDatabaseMetaDriver_t> kMetaDriver;
extern const TableOf<QvDatabaseMeta_t> kMeta;
} // namespace simulator

namespace text {
extern const TableOf<QvDatabaseMisc_t> kVersion;
} // namespace text

namespace calibration {
extern const TableOf<QvDatabaseCalibration_t> kCalibration;
} // namespace calibration

namespace initialization {
extern const TableOf<QvDatabaseCModel_t> kCModel;
extern const TableOf<QvDatabaseDevice_t> kDevice;
extern const TableOf<QvDatabaseInput_t> kInput;
extern const TableOf<QvDatabaseOutput_t> kOutput;
extern const TableOf<QvDatabaseSensor_t> kSensor;
extern const TableOf<QvDatabaseTransmit_t> kTransmit;
} // namespace initialization

/// One table with the document that it forms and the category whose record it describes.
struct Form {
    const char* document; ///< "tuning", "version", "simulator", "calibration", "initialization", "meta", "results",
                          ///< "register" or "value"
    const char* key;      ///< the category's key; a value record's type name
    const Table* table;
};

/// All tables, document by document.
std::span<const Form> forms();

} // namespace qv::database
