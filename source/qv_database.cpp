#include <qv_database_c/qv_database.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
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
#include <qv_database_c/protocol_simulator_codecs.h>
#include <qv_json_c/json_compact.h>

#include "database_binary.h"
#include "database_registry.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"

// Not in the contract of the common library: with a build of it that lacks this one, an image is brought together
// first.
extern "C" [[gnu::weak]] decltype(QvCommonBuffer_saveParts) QvCommonBuffer_saveParts;

// Nor in that of the JSON library: without it the tree of a load takes more memory.
extern "C" [[gnu::weak]] decltype(QvJsonCompact_setReader) QvJsonCompact_setReader;

using namespace qv::database;

namespace {

constexpr const char* kIspVersion = "QVP1200L_V2407";

/// The stream for a line without a source position.
FILE* infoStream()
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Info, nullptr, 0, nullptr);
    return QvCommonTracer_file(hTracer);
}

struct DeleteBuffer {
    void operator()(QvCommonBuffer_t* pBuffer) const { QvCommonBuffer_delete(&pBuffer); }
};
using Buffer = std::unique_ptr<QvCommonBuffer_t, DeleteBuffer>;

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

/// Saves the image straight from the records, with the traces that the pass into a buffer leaves: bringing together
/// half a megabyte first would cost as much as writing it. Failures are traced by the caller.
int saveImage(QvDatabaseHandle_t handle, const char* pFilename)
{
    std::array<QvCommonBufferPart_t, std::size(kImageKeys)> parts{};
    QvCommonBuffer_t place{};
    int status = QvDatabaseBinary_serialize(handle, nullptr, &place.size);
    for (std::size_t i = 0; status == kSuccess && i < parts.size(); ++i) {
        const Category& row = *imageCategories()[i];
        void* pRecord = nullptr;
        status = QvDatabase_query(handle, row.key, &pRecord);
        if (status == kSuccess) {
            status = enterRecord(&place, row, ">>>");
        }
        place.offset += row.size;
        parts[i] = {static_cast<const char*>(pRecord), row.size};
    }
    return status == kSuccess ? QvCommonBuffer_saveParts(parts.data(), parts.size(), pFilename) : status;
}

int serializeImage(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    std::size_t total = 0;
    const int status = QvDatabaseBinary_serialize(handle, nullptr, &total);
    if (status != kSuccess) {
        return status;
    }
    pBuffer->pBegin = static_cast<char*>(std::calloc(1, total));
    if (pBuffer->pBegin == nullptr) {
        return kNoMemory;
    }
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
    QV_TRY(pContext == nullptr ? kNoMemory : kSuccess);
    pContext->openParam = *pParam;
    std::snprintf(pContext->description, sizeof pContext->description, "Database");

    QV_TRY(QvInitializationReader_open(&pContext->hInitializationReader));
    QV_TRY(QvInitializationWriter_open(&pContext->hInitializationWriter));
    QV_TRY(QvJsonReader_open(&pContext->hJsonReader));
    QV_TRY(QvJsonCompact_setReader != nullptr ? QvJsonCompact_setReader(pContext->hJsonReader) : kSuccess);
    QvJsonWriterOpenParam_t writerParam{};
    writerParam.decimals = 6;
    writerParam.elementNumberPerLine = 0;
    std::memcpy(writerParam.indent, "  ", 2);
    QV_TRY(QvJsonWriter_open(&writerParam, &pContext->hJsonWriter));

    QvCommonMapOpenParam_t mapParam{};
    mapParam.pFree = &freeObject;
    QV_TRY(QvCommonMap_open(&mapParam, &pContext->hMap));
    QV_TRY(registerCategories(pContext));
    void* pRam = nullptr;
    QV_TRY(findRecord(pContext, "RAM", &pRam));
    QV_TRY(QvCommonBufferQueue_open(nullptr, &static_cast<QvDatabaseRam_t*>(pRam)->hBufferQueueFile));

    void* pMisc = nullptr;
    QV_TRY(findRecord(pContext, "MISC", &pMisc));
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
    QV_TRY(findRecord(pContext, "RAM", &pRecord));
    auto* pRam = static_cast<QvDatabaseRam_t*>(pRecord);
    if (pRam->hBufferQueueFile != 0) { // an application may have closed the queue itself, by a reset of the record
        QV_TRY(QvCommonBufferQueue_close(&pRam->hBufferQueueFile));
    }
    QV_TRY(QvCommonMap_close(&pContext->hMap));
    QV_TRY(QvJsonWriter_close(&pContext->hJsonWriter));
    QV_TRY(QvJsonReader_close(&pContext->hJsonReader));
    QV_TRY(QvInitializationWriter_close(&pContext->hInitializationWriter));
    QV_TRY(QvInitializationReader_close(&pContext->hInitializationReader));
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
    QV_TRY(queryRecord(handle, "CLB", &pCalibration));
    const QvDatabaseCalibrationHeader_t& header = pCalibration->header;
    const QvDatabaseCalibrationSensor_t& sensor = pCalibration->sensor;
    std::fprintf(infoStream(), "header/resolution: %d\n", header.resolutionNumber);
    // A failed load may have left a count that is larger than the list. It is followed as a save follows it: as far as
    // whole items lie in the record.
    using Resolution = QvDatabaseCalibrationHeaderResolution_t;
    const char* pResolutions = reinterpret_cast<const char*>(header.resolutions);
    const char* pEnd = reinterpret_cast<const char*>(pCalibration) + sizeof *pCalibration;
    const std::size_t most = static_cast<std::size_t>(pEnd - pResolutions) / sizeof(Resolution);
    for (std::size_t i = 0; i < header.resolutionNumber && i < most; ++i) {
        Resolution resolution;
        std::memcpy(&resolution, pResolutions + i * sizeof(Resolution), sizeof(Resolution));
        std::fprintf(infoStream(), "header/resolution[%d]/framerate: %d\n", static_cast<int>(i),
                     resolution.framerateNumber);
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
    QV_TRY(QvCommonBuffer_create(&pBuffer));
    Buffer owner(pBuffer);
    QV_TRY(QvCommonBuffer_load2(pFilename, 0, 0, pBuffer));
    QV_TRY(parse(handle, pFilename, pBuffer));
    pBuffer = owner.release();
    QV_TRY(QvCommonBuffer_delete(&pBuffer));
    return kSuccess;
}

int QvDatabase_save(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    if (containerOf(pFilename) == Container::Binary && QvCommonBuffer_saveParts != nullptr) {
        QV_TRY(saveImage(handle, pFilename));
        return kSuccess;
    }
    QvCommonBuffer_t* pBuffer = nullptr;
    QV_TRY(QvCommonBuffer_create(&pBuffer));
    Buffer owner(pBuffer);
    clearShortage();
    QV_TRY(serialize(handle, pFilename, pBuffer));
    QV_TRY(isShort() ? kNoMemory : kSuccess); // a document that lacks something must not replace the one there
    QV_TRY(QvCommonBuffer_save2(pBuffer, pFilename, 0));
    pBuffer = owner.release();
    QV_TRY(QvCommonBuffer_delete(&pBuffer));
    return kSuccess;
}

int QvDatabase_metaLoad(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    // Only a load that went well releases the tree.
    QvJsonValue_t* pDocument = nullptr;
    QV_TRY(QvJsonReader_load(contextOf(handle)->hJsonReader, pFilename, &pDocument));
    QvDatabaseMeta_t* pMeta = nullptr;
    QV_TRY(queryRecord(handle, "MT", &pMeta));
    int status = QvDatabaseProtocolSimulator_meta_parse(pDocument, pMeta);
    if (status == kNoContent) {
        status = QvDatabaseMeta_parse(pDocument, pMeta);
    }
    QV_TRY(status);
    QV_TRY(QvJsonValue_delete(&pDocument));
    return kSuccess;
}

int QvDatabase_metaSave(QvDatabaseHandle_t handle, const char* pFilename)
{
    if (handle == 0 || pFilename == nullptr) {
        return kBadArgument;
    }
    QvDatabaseMeta_t* pMeta = nullptr;
    QV_TRY(queryRecord(handle, "MT", &pMeta));
    QvJsonValue_t* pDocument = nullptr;
    QV_TRY(QvJsonValue_create(QvJsonValueType_Null, &pDocument));
    QvDatabaseSetting_t* pSetting = nullptr;
    clearShortage();
    int status = queryRecord(handle, "ST", &pSetting);
    if (status == kSuccess) {
        status = pSetting->protocol == QvDatabaseSettingProtocol_Simulator
                     ? QvDatabaseProtocolSimulator_meta_serialize(pMeta, pDocument)
                     : QvDatabaseMeta_serialize(pMeta, pDocument);
    }
    if (status == kSuccess && isShort()) {
        status = kNoMemory; // as in a save of the whole
    }
    if (status == kSuccess) {
        status = QvJsonWriter_save(contextOf(handle)->hJsonWriter, pDocument, pFilename);
    }
    QvJsonValue_delete(&pDocument);
    QV_TRY(status);
    return kSuccess;
}
