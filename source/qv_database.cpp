#include <qv_database_c/qv_database.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_buffer_queue.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_ram.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_text.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

namespace {

constexpr const char* kIspVersion = "QVP1200L_V2407";

/// The stream for a line without a source position.
FILE* infoStream()
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Info, nullptr, 0, nullptr);
    return QvCommonTracer_file(hTracer);
}

int openReadersAndWriters(Context_t* pContext)
{
    int status = QvInitializationReader_open(&pContext->hInitializationReader);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvInitializationWriter_open(&pContext->hInitializationWriter);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonReader_open(&pContext->hJsonReader);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvJsonWriterOpenParam_t param{};
    param.decimals = 6;
    param.elementNumberPerLine = 0;
    std::memcpy(param.indent, "  ", 2);
    status = QvJsonWriter_open(&param, &pContext->hJsonWriter);
    return status == kSuccess ? status : QV_FAIL(status);
}

int openRecords(Context_t* pContext)
{
    QvCommonMapOpenParam_t param{};
    param.pFree = &freeObject;
    int status = QvCommonMap_open(&param, &pContext->hMap);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = registerCategories(pContext);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    void* pRecord = nullptr;
    status = findRecord(pContext, "RAM", &pRecord);
    if (status == kSuccess) {
        status = QvCommonBufferQueue_open(nullptr, &static_cast<QvDatabaseRam_t*>(pRecord)->hBufferQueueFile);
    }
    return status == kSuccess ? status : QV_FAIL(status);
}

/// What a file name asks for. The comparison is exact; a name shorter than a suffix doesn't end in it.
enum class Container { Text, Initialization, Binary };

Container containerOf(std::string_view name)
{
    if (name.ends_with(".json")) {
        return Container::Text;
    }
    return name.ends_with(".ini") ? Container::Initialization : Container::Binary;
}

int parse(QvDatabaseHandle_t handle, const char* pFilename, QvCommonBuffer_t* pBuffer)
{
    switch (containerOf(pFilename)) {
    case Container::Text:
        return QvDatabaseText_parse(handle, pBuffer);
    case Container::Initialization:
        return QvDatabaseInitialization_parse(handle, pBuffer);
    case Container::Binary:
        break;
    }
    return QvDatabaseBinary_parse(handle, pBuffer);
}

int serializeImage(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    std::size_t total = 0;
    const int status = QvDatabaseBinary_serialize(handle, nullptr, &total);
    if (status != kSuccess) {
        return status;
    }
    pBuffer->pBegin = static_cast<char*>(std::calloc(1, total));
    pBuffer->size = total;
    pBuffer->isAllocated = true;
    return QvDatabaseBinary_serialize(handle, pBuffer, nullptr);
}

int serialize(QvDatabaseHandle_t handle, const char* pFilename, QvCommonBuffer_t* pBuffer)
{
    switch (containerOf(pFilename)) {
    case Container::Text:
        return QvDatabaseText_serialize(handle, pBuffer);
    case Container::Initialization:
        return QvDatabaseInitialization_serialize(handle, pBuffer);
    case Container::Binary:
        break;
    }
    return serializeImage(handle, pBuffer);
}

} // namespace

int QvDatabase_open(QvDatabaseOpenParam_t* pParam, QvDatabaseHandle_t* pHandle)
{
    if (pParam == nullptr || pHandle == nullptr || *pHandle != 0) {
        return kBadArgument;
    }
    std::fprintf(infoStream(), "ISP Version: %s\n", kIspVersion);
    auto* pContext = static_cast<Context_t*>(std::calloc(1, sizeof(Context_t)));
    *pHandle = reinterpret_cast<QvDatabaseHandle_t>(pContext);
    pContext->openParam = *pParam;
    std::snprintf(pContext->description, sizeof pContext->description, "Database");
    int status = openReadersAndWriters(pContext);
    if (status != kSuccess) {
        return status;
    }
    status = openRecords(pContext);
    if (status != kSuccess) {
        return status;
    }
    void* pMisc = nullptr;
    status = findRecord(pContext, "MISC", &pMisc);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    std::fprintf(infoStream(), "Qv_frameworks Version Number: %s\n",
                 static_cast<QvDatabaseMisc_t*>(pMisc)->versionNumber);
    return kSuccess;
}

int QvDatabase_close(QvDatabaseHandle_t* pHandle)
{
    if (pHandle == nullptr || *pHandle == 0) {
        return kBadArgument;
    }
    Context_t* pContext = contextOf(*pHandle);
    void* pRecord = nullptr;
    int status = findRecord(pContext, "RAM", &pRecord);
    if (status == kSuccess) {
        // An application may have closed the queue itself, by a reset of the record.
        auto* pRam = static_cast<QvDatabaseRam_t*>(pRecord);
        status = pRam->hBufferQueueFile == 0 ? kSuccess : QvCommonBufferQueue_close(&pRam->hBufferQueueFile);
    }
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvCommonMap_close(&pContext->hMap);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonWriter_close(&pContext->hJsonWriter);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonReader_close(&pContext->hJsonReader);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvInitializationWriter_close(&pContext->hInitializationWriter);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvInitializationReader_close(&pContext->hInitializationReader);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    std::free(pContext);
    *pHandle = 0;
    return kSuccess;
}

int QvDatabase_info(QvDatabaseHandle_t handle)
{
    if (handle == 0) {
        return kBadArgument;
    }
    QvDatabaseCalibration_t* pCalibration = nullptr;
    const int status = queryRecord(handle, "CLB", &pCalibration);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    const QvDatabaseCalibrationHeader_t& header = pCalibration->header;
    const QvDatabaseCalibrationSensor_t& sensor = pCalibration->sensor;
    std::fprintf(infoStream(), "header/resolution: %d\n", header.resolutionNumber);
    // A failed load may have left a count that is larger than the list.
    for (std::size_t i = 0; i < header.resolutionNumber && i < std::size(header.resolutions); ++i) {
        std::fprintf(infoStream(), "header/resolution[%d]/framerate: %d\n", static_cast<int>(i),
                     header.resolutions[i].framerateNumber);
    }
    std::fprintf(infoStream(), "awb/global: %d\n", sensor.awb.globalNumber);
    std::fprintf(infoStream(), "awb/illumination: %d\n", sensor.awb.illuminationNumber);
    std::fprintf(infoStream(), "bls: %d\n", sensor.blsNumber);
    std::fprintf(infoStream(), "bnr: %d\n", sensor.bnrNumber);
    std::fprintf(infoStream(), "cac: %d\n", sensor.cacNumber);
    std::fprintf(infoStream(), "cc: %d\n", sensor.ccNumber);
    std::fprintf(infoStream(), "dpf: %d\n", sensor.dpfNumber);
    std::fprintf(infoStream(), "lsc: %d\n", sensor.lscNumber);
    return kSuccess;
}

int QvDatabase_load(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    QvCommonBuffer_t* pBuffer = nullptr;
    int status = QvCommonBuffer_create(&pBuffer);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvCommonBuffer_load2(pFilename, 0, 0, pBuffer);
    if (status == kSuccess) {
        status = parse(handle, pFilename, pBuffer);
    }
    if (status != kSuccess) {
        QvCommonBuffer_delete(&pBuffer);
        return QV_FAIL(status);
    }
    status = QvCommonBuffer_delete(&pBuffer);
    return status == kSuccess ? status : QV_FAIL(status);
}

int QvDatabase_save(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    QvCommonBuffer_t* pBuffer = nullptr;
    int status = QvCommonBuffer_create(&pBuffer);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = serialize(handle, pFilename, pBuffer);
    if (status == kSuccess) {
        status = QvCommonBuffer_save2(pBuffer, pFilename, 0);
    }
    if (status != kSuccess) {
        QvCommonBuffer_delete(&pBuffer);
        return QV_FAIL(status);
    }
    status = QvCommonBuffer_delete(&pBuffer);
    return status == kSuccess ? status : QV_FAIL(status);
}

int QvDatabase_metaLoad(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    // Only a load that went well releases the tree.
    QvJsonValue_t* pDocument = nullptr;
    int status = QvJsonReader_load(contextOf(handle)->hJsonReader, pFilename, &pDocument);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvDatabaseMeta_t* pMeta = nullptr;
    status = queryRecord(handle, "MT", &pMeta);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvDatabaseProtocolSimulator_meta_parse(pDocument, pMeta);
    if (status == kNoContent) {
        status = QvDatabaseMeta_parse(pDocument, pMeta);
    }
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonValue_delete(&pDocument);
    return status == kSuccess ? status : QV_FAIL(status);
}

int QvDatabase_metaSave(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    QvDatabaseMeta_t* pMeta = nullptr;
    int status = queryRecord(handle, "MT", &pMeta);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvJsonValue_t* pDocument = nullptr;
    status = QvJsonValue_create(QvJsonValueType_Null, &pDocument);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvDatabaseSetting_t* pSetting = nullptr;
    status = queryRecord(handle, "ST", &pSetting);
    if (status == kSuccess) {
        status = pSetting->protocol == QvDatabaseSettingProtocol_Simulator
                     ? QvDatabaseProtocolSimulator_meta_serialize(pMeta, pDocument)
                     : QvDatabaseMeta_serialize(pMeta, pDocument);
    }
    if (status == kSuccess) {
        status = QvJsonWriter_save(contextOf(handle)->hJsonWriter, pDocument, pFilename);
    }
    QvJsonValue_delete(&pDocument);
    return status == kSuccess ? status : QV_FAIL(status);
}
