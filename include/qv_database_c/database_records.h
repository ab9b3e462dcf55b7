/*
 * All records at once: the record of each category with its functions, and the value records within them.
 */
#ifndef QV_DATABASE_C_DATABASE_RECORDS_H
#define QV_DATABASE_C_DATABASE_RECORDS_H

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

#endif
