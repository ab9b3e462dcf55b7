#include "database_registry.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <qv_common_c/common_logger.h>
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
#include <qv_database_c/protocol_calibration.h>

#include "database_status.h"
#include "database_trace.h"

namespace qv::database {
namespace {

template <class R>
R recordOf(int (*)(R*));

template <auto kReset>
constexpr Category category(const char* pKey, const char* pRecord)
{
    using R = decltype(recordOf(kReset));
    return {pKey, pRecord, sizeof(R), [](void* pData) { return kReset(static_cast<R*>(pData)); }};
}

#define QV_CATEGORY(key, stem) category<&stem##_reset>(key, #stem "_t")

// The order is that of registration. HTG and HTG_2 stand twice on purpose: the second pair replaces the first, and all
// code goes through the key.
constexpr Category kCategories[] = {
    category<&QvDatabaseProtocolCalibration_reset>("CLB", "QvDatabaseCalibration_t"),
    QV_CATEGORY("2DNR_5_2", QvDatabase2DNoiseReduction_5_2),
    QV_CATEGORY("A2DNR_5_2", QvDatabaseAuto2DNoiseReduction_5_2),
    QV_CATEGORY("3AI_2", QvDatabase3AInterface_2),
    QV_CATEGORY("3DNR_2_1", QvDatabase3DNoiseReduction_2_1),
    QV_CATEGORY("A3DNR_2_1", QvDatabaseAuto3DNoiseReduction_2_1),
    QV_CATEGORY("BLS", QvDatabaseBlackLevelSubtraction),
    QV_CATEGORY("ABLS", QvDatabaseAutoBlackLevelSubtraction),
    QV_CATEGORY("C_MODEL", QvDatabaseCModel),
    QV_CATEGORY("CCM_1_1", QvDatabaseColorCorrectionMatrix_1_1),
    QV_CATEGORY("ACCM_1_1", QvDatabaseAutoColorCorrectionMatrix_1_1),
    QV_CATEGORY("CNR_2_2", QvDatabaseColorNoiseReduction_2_2),
    QV_CATEGORY("ACNR_2_2", QvDatabaseAutoColorNoiseReduction_2_2),
    QV_CATEGORY("CP_1_2", QvDatabaseColorProcess_1_2),
    QV_CATEGORY("ACP_1_2", QvDatabaseAutoColorProcess_1_2),
    QV_CATEGORY("CPD_1_1", QvDatabaseCompand_1_1),
    QV_CATEGORY("DPCC", QvDatabaseDefectPixelClusterCorrection),
    QV_CATEGORY("ADPCC", QvDatabaseAutoDefectPixelClusterCorrection),
    QV_CATEGORY("DMSC_2", QvDatabaseDeMosaic_2),
    QV_CATEGORY("ADMSC_2", QvDatabaseAutoDeMosaic_2),
    QV_CATEGORY("DVC", QvDatabaseDevice),
    QV_CATEGORY("DG", QvDatabaseDigitalGain),
    QV_CATEGORY("DUMP", QvDatabaseDump),
    QV_CATEGORY("EE_2", QvDatabaseEdgeEnhance_2),
    QV_CATEGORY("AEE_2", QvDatabaseAutoEdgeEnhance_2),
    QV_CATEGORY("EC_2", QvDatabaseExposureControl_2),
    QV_CATEGORY("AE_3", QvDatabaseAutoExposure_3),
    QV_CATEGORY("AES_2", QvDatabaseAutoExposureStatistics_2),
    QV_CATEGORY("RAM", QvDatabaseRam),
    QV_CATEGORY("FC", QvDatabaseFocusControl),
    QV_CATEGORY("AFM", QvDatabaseAutoFocusMeasurement),
    QV_CATEGORY("AF_3", QvDatabaseAutoFocus_3),
    QV_CATEGORY("GC_2", QvDatabaseGammaCorrection_2),
    QV_CATEGORY("AGC_2", QvDatabaseAutoGammaCorrection_2),
    QV_CATEGORY("GE", QvDatabaseGreenEquilibration),
    QV_CATEGORY("AGE", QvDatabaseAutoGreenEquilibration),
    QV_CATEGORY("HDR_2_1", QvDatabaseHighDynamicRange_2_1),
    QV_CATEGORY("HTG", QvDatabaseHistogram),
    QV_CATEGORY("HTG_2", QvDatabaseHistogram_2),
    QV_CATEGORY("HTG", QvDatabaseHistogram),
    QV_CATEGORY("HTG_2", QvDatabaseHistogram_2),
    QV_CATEGORY("IPT", QvDatabaseInput),
    QV_CATEGORY("ISP", QvDatabaseIsp),
    QV_CATEGORY("LSC_4", QvDatabaseLensShadingCorrection_4),
    QV_CATEGORY("ALSC_4", QvDatabaseAutoLensShadingCorrection_4),
    QV_CATEGORY("MT", QvDatabaseMeta),
    QV_CATEGORY("MISC", QvDatabaseMisc),
    QV_CATEGORY("MD", QvDatabaseMetaDriver),
    QV_CATEGORY("OPT", QvDatabaseOutput),
    QV_CATEGORY("RGT", QvDatabaseRegister),
    QV_CATEGORY("RGBIR_1_1", QvDatabaseRgbInfraredRadiation_1_1),
    QV_CATEGORY("SS", QvDatabaseSensor),
    QV_CATEGORY("ST", QvDatabaseSetting),
    QV_CATEGORY("TL", QvDatabaseTile),
    QV_CATEGORY("TM", QvDatabaseTransmit),
    QV_CATEGORY("WB_1_1", QvDatabaseWhiteBalance_1_1),
    QV_CATEGORY("AWM", QvDatabaseAutoWorkMode),
    QV_CATEGORY("AWB_3", QvDatabaseAutoWhiteBalance_3),
    QV_CATEGORY("WDR_5_2_1", QvDatabaseWideDynamicRange_5_2_1),
    QV_CATEGORY("AWDR_5_2_1", QvDatabaseAutoWideDynamicRange_5_2_1),
};
static_assert(std::size(kCategories) == 60);

#undef QV_CATEGORY

int registerCategory(QvCommonMapHandle_t hMap, const Category& row)
{
    void* pRecord = std::calloc(1, row.size);
    // A reset answers a null record with 13, which is the test of the allocation.
    int status = row.reset(pRecord);
    if (status != kSuccess) {
        std::free(pRecord);
        return QV_FAIL(status);
    }
    auto* pHolder = static_cast<QvCommonMapSlot_t*>(std::calloc(1, sizeof(QvCommonMapSlot_t)));
    if (pHolder == nullptr) {
        std::free(pRecord);
        return QV_FAIL(kNoMemory);
    }
    pHolder->pObject = pRecord;
    status = QvCommonMap_add(hMap, row.key, &pHolder);
    if (status != kSuccess) {
        std::free(pHolder);
        std::free(pRecord);
        return QV_FAIL(status);
    }
    return kSuccess;
}

} // namespace

std::span<const Category> categories()
{
    return kCategories;
}

const Category* findCategory(const char* pKey)
{
    for (const Category& row : kCategories) {
        if (std::strcmp(row.key, pKey) == 0) {
            return &row;
        }
    }
    return nullptr;
}

int registerCategories(const Context_t* pContext)
{
    for (const Category& row : kCategories) {
        const int status = registerCategory(pContext->hMap, row);
        if (status != kSuccess) {
            return status;
        }
    }
    return kSuccess;
}

int freeObject(void** ppConfig)
{
    if (ppConfig == nullptr || *ppConfig == nullptr) {
        return kBadArgument;
    }
    std::free(*ppConfig);
    *ppConfig = nullptr;
    return kSuccess;
}

int findRecord(const Context_t* pContext, const char* pKey, void** ppRecord)
{
    QvCommonMapSlot_t* pSlot = nullptr;
    const int status = QvCommonMap_get(pContext->hMap, pKey, &pSlot);
    *ppRecord = status == kSuccess ? pSlot->pObject : nullptr;
    return status;
}

} // namespace qv::database

using namespace qv::database;

int QvDatabase_query(QvDatabaseHandle_t handle, const char* pCategory, void** ppData)
{
    if (handle == 0 || pCategory == nullptr || *pCategory == 0 || ppData == nullptr || *ppData != nullptr) {
        return kBadArgument;
    }
    const Context_t* pContext = contextOf(handle);
    QvCommonMapSlot_t* pSlot = nullptr;
    int status = QvCommonMap_get(pContext->hMap, pCategory, &pSlot);
    if (status != kSuccess) {
        char text[256] = {};
        std::snprintf(text, sizeof text, "%s: %s is never registered", pContext->description, pCategory);
        status = QvCommonLogger_log(pContext->openParam.hLogger, text);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    // With the miss logged the query goes on: the map has left its shared slot, which holds null. A map that leaves the
    // slot itself null must not make an application's misspelt key fault.
    *ppData = pSlot == nullptr ? nullptr : pSlot->pObject;
    return kSuccess;
}

const QvDatabaseCategory_t* QvDatabase_category(size_t index)
{
    static const auto kList = [] {
        struct {
            QvDatabaseCategory_t rows[std::size(kCategories)];
            std::size_t number;
        } list{};
        for (const Category& row : kCategories) {
            if (findCategory(row.key) == &row) {
                list.rows[list.number++] = {row.key, row.record, row.size};
            }
        }
        return list;
    }();
    return index < kList.number ? &kList.rows[index] : nullptr;
}
