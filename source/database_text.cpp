#include <qv_database_c/database_text.h>

#include <cstdio>
#include <cstring>

#include <qv_common_c/common_time.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_tuning.h>
#include <qv_database_c/protocol_simulator_codecs.h>
#include <qv_json_c/json_compact.h>

#include "database_registry.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"
#include "database_walk.h"
#include "protocol_calibration.h"

namespace qv::database::text {
namespace {

QV_RECORD(QvDatabaseMisc_t);

constexpr Field kRows[] = {
    QV_FIELD(versionNumber),
    QV_FIELD(exportDate).writeOnly(),
};

} // namespace

extern constinit const TableOf<Record> kVersion = QV_TABLE("version", kRows);

} // namespace qv::database::text

using namespace qv::database;

// Not in the contract of the JSON library: with a build of it that lacks this one, the tree of a save takes more memory.
extern "C" [[gnu::weak]] decltype(QvJsonCompact_create) QvJsonCompact_create;

namespace {

int createDocument(QvJsonValue_t** ppDocument)
{
    return QvJsonCompact_create != nullptr ? QvJsonCompact_create(ppDocument)
                                           : QvJsonValue_create(QvJsonValueType_Object, ppDocument);
}

/// Calibration begins from a clean record at each load, unlike every other category. Its reader takes a text. A
/// document that has been parsed is not parsed once more for that: its tree gives the same record, status and traces,
/// and a load would take nearly twice as long. A text that is none (pDocument is null) goes to the reader, whose status
/// it gets.
int calibration_textParse(const Context_t* pContext, QvCommonBuffer_t* pBuffer, QvJsonValue_t* pDocument)
{
    void* pData = nullptr;
    QV_TRY(findRecord(pContext, "CLB", &pData));
    auto* pRecord = static_cast<QvDatabaseCalibration_t*>(pData);
    QV_TRY(QvDatabaseProtocolCalibration_reset(pRecord));
    QV_TRY(pDocument == nullptr ? QvDatabaseProtocolCalibration_parse(pBuffer->pBegin, pRecord)
                                : parseCalibration(pDocument, pRecord));
    pRecord->isLoaded = true;
    return kSuccess;
}

int version_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    QvDatabaseMisc_t* pMisc = nullptr;
    const int status = queryRecord(handle, "MISC", &pMisc);
    if (status != kSuccess) {
        QvJsonValue_delete(&pValue);
        return QV_FAIL(status);
    }
    // A version of full length has no terminator, so copy and comparison stay within the field.
    constexpr std::size_t kSize = sizeof pMisc->versionNumber;
    char before[kSize];
    std::memcpy(before, pMisc->versionNumber, kSize);
    readTable(text::kVersion, pValue, pMisc);
    if (std::strncmp(before, pMisc->versionNumber, kSize) != 0) {
        QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Warning, nullptr, 0, nullptr);
        // The labels are the wrong way round, on purpose.
        std::fprintf(QvCommonTracer_file(hTracer),
                     "Json and code version are not match, CODE version: %.*s, JSON version: %.*s\n",
                     static_cast<int>(kSize), pMisc->versionNumber, static_cast<int>(kSize), before);
    }
    return kSuccess;
}

int version_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    QvDatabaseMisc_t* pMisc = nullptr;
    const int status = queryRecord(handle, "MISC", &pMisc);
    if (status != kSuccess) {
        QvJsonValue_delete(&pValue);
        return QV_FAIL(status);
    }
    QvCommonTime_timestamp(pMisc->exportDate, sizeof pMisc->exportDate);
    return writeTable(text::kVersion, pMisc, pValue);
}

/// The four members in their fixed order, whatever their order in the document; failures are traced for pFunction.
int parseMembers(QvDatabaseHandle_t handle, QvJsonValue_t* pDocument, QvCommonBuffer_t* pBuffer, const char* pFunction)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pDocument, "version");
    if (!QvJsonValue_isEmpty(pMember)) {
        QV_TRY_AS(pFunction, version_parse(handle, pMember));
    }
    pMember = QvJsonValue_member(pDocument, "root");
    if (!QvJsonValue_isEmpty(pMember)) {
        QV_TRY_AS(pFunction, QvDatabaseProtocolSimulator_parse(handle, pDocument));
    }
    pMember = QvJsonValue_member(pDocument, "header");
    if (!QvJsonValue_isEmpty(pMember)) {
        QV_TRY_AS(pFunction, calibration_textParse(contextOf(handle), pBuffer, pDocument));
    }
    pMember = QvJsonValue_member(pDocument, "tuning");
    if (!QvJsonValue_isEmpty(pMember)) {
        QV_TRY_AS(pFunction, QvDatabaseTuning_parse(handle, pMember));
    }
    return kSuccess;
}

/// Calibration, and what the setting's protocol asks for; failures are traced for pFunction.
int serializeMembers(QvDatabaseHandle_t handle, QvJsonValue_t* pDocument, const char* pFunction)
{
    QvDatabaseCalibration_t* pCalibration = nullptr;
    QV_TRY_AS(pFunction, queryRecord(handle, "CLB", &pCalibration));
    QV_TRY_AS(pFunction, QvDatabaseProtocolCalibration_serialize(pCalibration, pDocument));
    QvDatabaseSetting_t* pSetting = nullptr;
    QV_TRY_AS(pFunction, queryRecord(handle, "ST", &pSetting));
    if (pSetting->protocol == QvDatabaseSettingProtocol_Simulator) {
        QV_TRY_AS(pFunction, QvDatabaseProtocolSimulator_serialize(handle, pDocument));
    } else {
        QV_TRY_AS(pFunction, QvDatabaseTuning_serialize(handle, pDocument));
    }
    return kSuccess;
}

} // namespace

int QvDatabaseText_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    if (handle == 0 || pBuffer == nullptr) {
        return kBadArgument;
    }
    const Context_t* pContext = contextOf(handle);
    if (pBuffer->pBegin != nullptr && *pBuffer->pBegin == '<') {
        return calibration_textParse(pContext, pBuffer, nullptr);
    }
    QvJsonValue_t* pDocument = nullptr;
    QV_TRY(QvJsonReader_parse(pContext->hJsonReader, pBuffer->pBegin, pBuffer->pBegin + pBuffer->size, &pDocument));
    const int status = parseMembers(handle, pDocument, pBuffer, __func__);
    if (status != kSuccess) {
        return status; // the document is not released on this path
    }
    QV_TRY(QvJsonValue_delete(&pDocument));
    return kSuccess;
}

int QvDatabaseText_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    if (handle == 0 || pBuffer == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pDocument = nullptr;
    QV_TRY(createDocument(&pDocument));
    // Nor is it where the version fails, whose member is gone then.
    QV_TRY(version_serialize(handle, writableMember(pDocument, "version")));
    int status = serializeMembers(handle, pDocument, __func__);
    if (status == kSuccess) {
        status = QvJsonWriter_stringify(contextOf(handle)->hJsonWriter, pDocument, &pBuffer->pBegin);
        if (status != kSuccess) {
            static_cast<void>(QV_FAIL(status));
        }
    }
    if (status != kSuccess) {
        QvJsonValue_delete(&pDocument);
        return status;
    }
    pBuffer->size = std::strlen(pBuffer->pBegin);
    pBuffer->isAllocated = true;
    QV_TRY(QvJsonValue_delete(&pDocument));
    return kSuccess;
}
