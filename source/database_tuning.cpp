#include "database_tuning.h"

#include <qv_database_c/database_2d_noise_reduction_5_2.h>
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
#include <qv_database_c/database_black_level_subtraction.h>
#include <qv_database_c/database_c_model.h>
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
#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_output.h>
#include <qv_database_c/database_rgb_infrared_radiation_1_1.h>
#include <qv_database_c/database_sensor.h>
#include <qv_database_c/database_tile.h>
#include <qv_database_c/database_transmit.h>
#include <qv_database_c/database_white_balance_1_1.h>
#include <qv_database_c/database_wide_dynamic_range_5_2_1.h>

namespace qv::database {
namespace {

// The order in which a document is read and its members are written. AES_2 is read and not written: what it held in
// memory stays through a save and a load.
constexpr TuningRow kRows[] = {
    {QV_CODEC("2DNR_5_2", QvDatabase2DNoiseReduction_5_2)},
    {QV_CODEC("A2DNR_5_2", QvDatabaseAuto2DNoiseReduction_5_2)},
    {QV_CODEC("3DNR_2_1", QvDatabase3DNoiseReduction_2_1)},
    {QV_CODEC("A3DNR_2_1", QvDatabaseAuto3DNoiseReduction_2_1)},
    {QV_CODEC("AFM", QvDatabaseAutoFocusMeasurement)},
    {QV_CODEC("BLS", QvDatabaseBlackLevelSubtraction)},
    {QV_CODEC("ABLS", QvDatabaseAutoBlackLevelSubtraction)},
    {QV_CODEC("CCM_1_1", QvDatabaseColorCorrectionMatrix_1_1)},
    {QV_CODEC("ACCM_1_1", QvDatabaseAutoColorCorrectionMatrix_1_1)},
    {QV_CODEC("CNR_2_2", QvDatabaseColorNoiseReduction_2_2)},
    {QV_CODEC("ACNR_2_2", QvDatabaseAutoColorNoiseReduction_2_2)},
    {QV_CODEC("CP_1_2", QvDatabaseColorProcess_1_2)},
    {QV_CODEC("ACP_1_2", QvDatabaseAutoColorProcess_1_2)},
    {QV_CODEC("CPD_1_1", QvDatabaseCompand_1_1)},
    {QV_CODEC("DPCC", QvDatabaseDefectPixelClusterCorrection)},
    {QV_CODEC("ADPCC", QvDatabaseAutoDefectPixelClusterCorrection)},
    {QV_CODEC("DMSC_2", QvDatabaseDeMosaic_2)},
    {QV_CODEC("ADMSC_2", QvDatabaseAutoDeMosaic_2)},
    {QV_CODEC("DG", QvDatabaseDigitalGain)},
    {QV_CODEC("EE_2", QvDatabaseEdgeEnhance_2)},
    {QV_CODEC("AEE_2", QvDatabaseAutoEdgeEnhance_2)},
    {QV_CODEC("EC_2", QvDatabaseExposureControl_2)},
    {QV_CODEC("AE_3", QvDatabaseAutoExposure_3)},
    {QV_CODEC("AES_2", QvDatabaseAutoExposureStatistics_2), false},
    {QV_CODEC("FC", QvDatabaseFocusControl)},
    {QV_CODEC("AF_3", QvDatabaseAutoFocus_3)},
    {QV_CODEC("GC_2", QvDatabaseGammaCorrection_2)},
    {QV_CODEC("AGC_2", QvDatabaseAutoGammaCorrection_2)},
    {QV_CODEC("GE", QvDatabaseGreenEquilibration)},
    {QV_CODEC("AGE", QvDatabaseAutoGreenEquilibration)},
    {QV_CODEC("HDR_2_1", QvDatabaseHighDynamicRange_2_1)},
    {QV_CODEC("HTG", QvDatabaseHistogram)},
    {QV_CODEC("HTG_2", QvDatabaseHistogram_2)},
    {QV_CODEC("LSC_4", QvDatabaseLensShadingCorrection_4)},
    {QV_CODEC("ALSC_4", QvDatabaseAutoLensShadingCorrection_4)},
    {QV_CODEC("RGBIR_1_1", QvDatabaseRgbInfraredRadiation_1_1)},
    {QV_CODEC("TL", QvDatabaseTile)},
    {QV_CODEC("WB_1_1", QvDatabaseWhiteBalance_1_1)},
    {QV_CODEC("AWB_3", QvDatabaseAutoWhiteBalance_3)},
    {QV_CODEC("WDR_5_2_1", QvDatabaseWideDynamicRange_5_2_1)},
    {QV_CODEC("AWDR_5_2_1", QvDatabaseAutoWideDynamicRange_5_2_1)},
    {QV_CODEC("AWM", QvDatabaseAutoWorkMode)},
    {QV_CODEC("DUMP", QvDatabaseDump)},
    {QV_CODEC("MISC", QvDatabaseMisc)},
    {QV_CODEC("C_MODEL", QvDatabaseCModel)},
    {QV_CODEC("DVC", QvDatabaseDevice)},
    {QV_CODEC("IPT", QvDatabaseInput)},
    {QV_CODEC("OPT", QvDatabaseOutput)},
    {QV_CODEC("SS", QvDatabaseSensor)},
    {QV_CODEC("TM", QvDatabaseTransmit)},
};

} // namespace

std::span<const TuningRow> tuningRows()
{
    return kRows;
}

} // namespace qv::database
