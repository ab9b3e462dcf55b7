#include "database_registry.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <qv_common_c/common_logger.h>
#include <qv_database_c/database_records.h>
#include <qv_database_c/protocol_calibration.h>
#include <qv_database_c/protocol_initialization.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_binary.h"
#include "database_initialization.h"
#include "database_status.h"
#include "database_trace.h"

namespace qv::database {

namespace initialization {
extern const TableOf<QvDatabaseCModel_t> kCModel;
extern const TableOf<QvDatabaseDevice_t> kDevice;
extern const TableOf<QvDatabaseInput_t> kInput;
extern const TableOf<QvDatabaseOutput_t> kOutput;
extern const TableOf<QvDatabaseSensor_t> kSensor;
extern const TableOf<QvDatabaseTransmit_t> kTransmit;
} // namespace initialization

namespace {

template <class R>
R resetRecordOf(int (*)(R*));

template <auto kReset>
constexpr Category category(const char* pKey, const char* pRecord, Codec tuning = {})
{
    using R = decltype(resetRecordOf(kReset));
    return {pKey, pRecord, sizeof(R), [](void* pData) { return kReset(static_cast<R*>(pData)); }, false, false, tuning};
}

#define QV_CATEGORY(key, record, reset) category<&reset>(key, #record)
#define QV_UNTUNED(key, stem) category<&stem##_reset>(key, #stem "_t")
#define QV_TUNED(key, stem) category<&stem##_reset>(key, #stem "_t", QV_CODEC(stem))
#define QV_CLASS(name) QV_CODEC(QvDatabaseProtocolSimulator_##name)
#define QV_SECTION(name, table)                                                                                        \
    makeSectionCodec<&QvDatabaseProtocolInitialization_##name##_parse,                                                 \
                     &QvDatabaseProtocolInitialization_##name##_serialize>(initialization::table)

// The order is that of registration. HTG and HTG_2 stand twice on purpose: the second pair replaces the first, and all
// code goes through the key.
// clang-format off
constexpr Category kCategories[] = {
    QV_CATEGORY("CLB", QvDatabaseCalibration_t, QvDatabaseProtocolCalibration_reset),
    QV_TUNED("2DNR_5_2", QvDatabase2DNoiseReduction_5_2).unguarded().simulated(QV_CLASS(2DNoiseReduction_5_2)),
    QV_TUNED("A2DNR_5_2", QvDatabaseAuto2DNoiseReduction_5_2).simulated(QV_CLASS(auto2DNoiseReduction_5_2)),
    QV_UNTUNED("3AI_2", QvDatabase3AInterface_2).simulated(QV_CLASS(3AInterface_2)),
    QV_TUNED("3DNR_2_1", QvDatabase3DNoiseReduction_2_1).simulated(QV_CLASS(3DNoiseReduction_2_1)),
    QV_TUNED("A3DNR_2_1", QvDatabaseAuto3DNoiseReduction_2_1).simulated(QV_CLASS(auto3DNoiseReduction_2_1)),
    QV_TUNED("BLS", QvDatabaseBlackLevelSubtraction).simulated(QV_CLASS(blackLevelSubtraction)),
    QV_TUNED("ABLS", QvDatabaseAutoBlackLevelSubtraction).simulated(QV_CLASS(autoBlackLevelSubtraction)),
    QV_TUNED("C_MODEL", QvDatabaseCModel).unguarded().sectioned(QV_SECTION(cModel, kCModel)),
    QV_TUNED("CCM_1_1", QvDatabaseColorCorrectionMatrix_1_1).simulated(QV_CLASS(colorCorrectionMatrix_1_1)),
    QV_TUNED("ACCM_1_1", QvDatabaseAutoColorCorrectionMatrix_1_1).simulated(QV_CLASS(AutoColorCorrectionMatrix_1_1)),
    QV_TUNED("CNR_2_2", QvDatabaseColorNoiseReduction_2_2).simulated(QV_CLASS(colorNoiseReduction_2_2)),
    QV_TUNED("ACNR_2_2", QvDatabaseAutoColorNoiseReduction_2_2).simulated(QV_CLASS(autoColorNoiseReduction_2_2)),
    QV_TUNED("CP_1_2", QvDatabaseColorProcess_1_2).simulated(QV_CLASS(colorProcess_1_2)),
    QV_TUNED("ACP_1_2", QvDatabaseAutoColorProcess_1_2).simulated(QV_CLASS(autoColorProcess_1_2)),
    QV_TUNED("CPD_1_1", QvDatabaseCompand_1_1).simulated(QV_CLASS(compand_1_1)),
    QV_TUNED("DPCC", QvDatabaseDefectPixelClusterCorrection).simulated(QV_CLASS(defectPixelClusterCorrection)),
    QV_TUNED("ADPCC", QvDatabaseAutoDefectPixelClusterCorrection).simulated(QV_CLASS(autoDefectPixelClusterCorrection)),
    QV_TUNED("DMSC_2", QvDatabaseDeMosaic_2).simulated(QV_CLASS(deMosaic_2)),
    QV_TUNED("ADMSC_2", QvDatabaseAutoDeMosaic_2).simulated(QV_CLASS(autoDeMosaic_2)),
    QV_TUNED("DVC", QvDatabaseDevice).sectioned(QV_SECTION(device, kDevice)),
    QV_TUNED("DG", QvDatabaseDigitalGain).simulated(QV_CLASS(digitalGain)),
    QV_TUNED("DUMP", QvDatabaseDump),
    QV_TUNED("EE_2", QvDatabaseEdgeEnhance_2).simulated(QV_CLASS(edgeEnhance_2)),
    QV_TUNED("AEE_2", QvDatabaseAutoEdgeEnhance_2).simulated(QV_CLASS(autoEdgeEnhance_2)),
    QV_TUNED("EC_2", QvDatabaseExposureControl_2),
    QV_TUNED("AE_3", QvDatabaseAutoExposure_3).simulated(QV_CLASS(autoExposure_3)),
    QV_TUNED("AES_2", QvDatabaseAutoExposureStatistics_2).simulated(QV_CLASS(autoExposureStatistics_2)),
    QV_UNTUNED("RAM", QvDatabaseRam).partial(),
    QV_TUNED("FC", QvDatabaseFocusControl),
    QV_TUNED("AFM", QvDatabaseAutoFocusMeasurement).simulated(QV_CLASS(autoFocusMeasurement)),
    QV_TUNED("AF_3", QvDatabaseAutoFocus_3).simulated(QV_CLASS(autoFocus_3)),
    QV_TUNED("GC_2", QvDatabaseGammaCorrection_2).simulated(QV_CLASS(gammaCorrection_2)),
    QV_TUNED("AGC_2", QvDatabaseAutoGammaCorrection_2).simulated(QV_CLASS(autoGammaCorrection_2)),
    QV_TUNED("GE", QvDatabaseGreenEquilibration).simulated(QV_CLASS(greenEquilibration)),
    QV_TUNED("AGE", QvDatabaseAutoGreenEquilibration).simulated(QV_CLASS(autoGreenEquilibration)),
    QV_TUNED("HDR_2_1", QvDatabaseHighDynamicRange_2_1).simulated(QV_CLASS(highDynamicRange_2_1)),
    QV_TUNED("HTG", QvDatabaseHistogram).simulated(QV_CLASS(histogram)),
    QV_TUNED("HTG_2", QvDatabaseHistogram_2).simulated(QV_CLASS(histogram_2)),
    QV_TUNED("HTG", QvDatabaseHistogram).simulated(QV_CLASS(histogram)),
    QV_TUNED("HTG_2", QvDatabaseHistogram_2).simulated(QV_CLASS(histogram_2)),
    QV_TUNED("IPT", QvDatabaseInput).sectioned(QV_SECTION(input, kInput)),
    QV_UNTUNED("ISP", QvDatabaseIsp).simulated(QV_CLASS(isp)),
    QV_TUNED("LSC_4", QvDatabaseLensShadingCorrection_4).simulated(QV_CLASS(lensShadingCorrection_4)),
    QV_TUNED("ALSC_4", QvDatabaseAutoLensShadingCorrection_4).simulated(QV_CLASS(autoLensShadingCorrection_4)),
    QV_UNTUNED("MT", QvDatabaseMeta),
    QV_TUNED("MISC", QvDatabaseMisc).simulated(QV_CLASS(misc)),
    QV_UNTUNED("MD", QvDatabaseMetaDriver).simulated(QV_CLASS(metaDriver)),
    QV_TUNED("OPT", QvDatabaseOutput).sectioned(QV_SECTION(output, kOutput)),
    QV_UNTUNED("RGT", QvDatabaseRegister),
    QV_TUNED("RGBIR_1_1", QvDatabaseRgbInfraredRadiation_1_1).simulated(QV_CLASS(rgbInfraredRadiation_1_1)),
    QV_TUNED("SS", QvDatabaseSensor).unguarded().simulated(QV_CLASS(sensor)).sectioned(QV_SECTION(sensor, kSensor)),
    QV_UNTUNED("ST", QvDatabaseSetting),
    QV_TUNED("TL", QvDatabaseTile),
    QV_TUNED("TM", QvDatabaseTransmit).sectioned(QV_SECTION(transmit, kTransmit)),
    QV_TUNED("WB_1_1", QvDatabaseWhiteBalance_1_1).simulated(QV_CLASS(whiteBalance_1_1)),
    QV_TUNED("AWM", QvDatabaseAutoWorkMode).simulated(QV_CLASS(autoWorkMode)),
    QV_TUNED("AWB_3", QvDatabaseAutoWhiteBalance_3).simulated(QV_CLASS(autoWhiteBalance_3)),
    QV_TUNED("WDR_5_2_1", QvDatabaseWideDynamicRange_5_2_1).simulated(QV_CLASS(wideDynamicRange_5_2_1)),
    QV_TUNED("AWDR_5_2_1", QvDatabaseAutoWideDynamicRange_5_2_1).simulated(QV_CLASS(autoWideDynamicRange_5_2_1)),
};
// clang-format on
static_assert(std::size(kCategories) == 60);

#undef QV_CATEGORY
#undef QV_UNTUNED
#undef QV_TUNED
#undef QV_CLASS
#undef QV_SECTION

constexpr const Category* firstUnder(std::string_view key)
{
    for (const Category& row : kCategories) {
        if (row.key == key) {
            return &row;
        }
    }
    return nullptr;
}

/// The categories of a container, found by the compiler.
template <std::size_t N>
constexpr std::array<const Category*, N> listOf(const char* const (&keys)[N])
{
    std::array<const Category*, N> list{};
    for (std::size_t i = 0; i < N; ++i) {
        list[i] = firstUnder(keys[i]);
    }
    return list;
}

constexpr auto kImageCategories = listOf(kImageKeys);
constexpr auto kSectionCategories = listOf(kSectionKeys);
static_assert(std::ranges::count(kImageCategories, nullptr) + std::ranges::count(kSectionCategories, nullptr) == 0);

} // namespace

std::span<const Category> categories()
{
    return kCategories;
}

std::span<const Category* const> imageCategories()
{
    return kImageCategories;
}

std::span<const Category* const> sectionCategories()
{
    return kSectionCategories;
}

const Category* findCategory(const char* pKey)
{
    return firstUnder(pKey);
}

int registerCategories(const Context_t* pContext)
{
    for (const Category& row : kCategories) {
        // A reset answers a null record with 13, which is the test of the allocation, but for those that test nothing.
        // What a reset writes whole needs no zeros first: opening a database is little else than filling records.
        void* pBlock = row.isResetPartial ? std::calloc(1, row.size) : std::malloc(row.size);
        std::unique_ptr<void, decltype(&std::free)> pRecord{pBlock, &std::free};
        QV_TRY(pRecord == nullptr && row.isResetUnguarded ? kNoMemory : kSuccess);
        QV_TRY(row.reset(pRecord.get()));
        std::unique_ptr<void, decltype(&std::free)> pHolder{std::calloc(1, sizeof(QvCommonMapSlot_t)), &std::free};
        QV_TRY(pHolder == nullptr ? kNoMemory : kSuccess);
        auto* pSlot = static_cast<QvCommonMapSlot_t*>(pHolder.get());
        pSlot->pObject = pRecord.get();
        QV_TRY(QvCommonMap_add(pContext->hMap, row.key, &pSlot));
        static_cast<void>(pRecord.release()); // both are the map's from here on
        static_cast<void>(pHolder.release());
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

int queryCategory(QvDatabaseHandle_t handle, const char* pKey, const Category** ppCategory, void** ppRecord)
{
    *ppCategory = findCategory(pKey);
    *ppRecord = nullptr;
    return *ppCategory == nullptr ? static_cast<int>(kBadArgument) : QvDatabase_query(handle, pKey, ppRecord);
}

} // namespace qv::database

using namespace qv::database;

namespace {

/// Tells the logger of a key that is not registered. Its status is all that counts from then on.
[[gnu::noinline]] int logMiss(const Context_t& context, const char* pKey)
{
    char text[256] = {};
    std::snprintf(text, sizeof text, "%s: %s is never registered", context.description, pKey);
    return QvCommonLogger_log(context.openParam.hLogger, text);
}

} // namespace

int QvDatabase_query(QvDatabaseHandle_t handle, const char* pCategory, void** ppData)
{
    if (handle == 0 || pCategory == nullptr || *pCategory == 0 || ppData == nullptr || *ppData != nullptr) {
        return kBadArgument;
    }
    const Context_t* pContext = contextOf(handle);
    QvCommonMapSlot_t* pSlot = nullptr;
    if (QvCommonMap_get(pContext->hMap, pCategory, &pSlot) != kSuccess) {
        QV_TRY(logMiss(*pContext, pCategory));
    }
    // With the miss logged the query goes on: the map has left its shared slot, which holds null. A map that leaves the
    // slot itself null must not make an application's misspelt key fault.
    *ppData = pSlot == nullptr ? nullptr : pSlot->pObject;
    return kSuccess;
}

const QvDatabaseCategory_t* QvDatabase_category(std::size_t index)
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
