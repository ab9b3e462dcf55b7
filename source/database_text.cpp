#include <qv_database_c/database_text.h>

#include <cstdio>
#include <cstring>

#include <qv_common_c/common_time.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_tuning.h>
#include <qv_database_c/protocol_calibration.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"
#include "database_walk.h"

namespace qv::database::text {
namespace {

using Record = QvDatabaseMisc_t;

constexpr Field kRows[] = {
    QV_FIELD(versionNumber),
    QV_FIELD(exportDate).writeOnly(),
};

} // namespace

constinit const TableOf<Record> kVersion{"version", __FILE__, kRows};

} // namespace qv::database::text

using namespace qv::database;

namespace {

/// Calibration begins from a clean record at each load, unlike every other category.
int calibration_textParse(const Context_t* pContext, QvCommonBuffer_t* pBuffer)
{
    if (pContext == nullptr || pBuffer == nullptr) {
        return kBadArgument;
    }
    void* pData = nullptr;
    int status = findRecord(pContext, "CLB", &pData);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    auto* pRecord = static_cast<QvDatabaseCalibration_t*>(pData);
    status = QvDatabaseProtocolCalibration_reset(pRecord);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvDatabaseProtocolCalibration_parse(pBuffer->pBegin, pRecord);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    pRecord->isLoaded = true;
    return kSuccess;
}

int version_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
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
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    QvDatabaseMisc_t* pMisc = nullptr;
    const int status = queryRecord(handle, "MISC", &pMisc);
    if (status != kSuccess) {
        QvJsonValue_delete(&pValue);
        return QV_FAIL(status);
    }
    QvCommonTime_timestamp(pMisc->exportDate, sizeof pMisc->exportDate);
    return writeTable(text::kVersion, pMisc, pValue);
}

int parseMembers(QvDatabaseHandle_t handle, QvJsonValue_t* pDocument, QvCommonBuffer_t* pBuffer)
{
    QvJsonValue_t* pMember = QvJsonValue_member(pDocument, "version");
    int status = kSuccess;
    if (!QvJsonValue_isEmpty(pMember) && (status = version_parse(handle, pMember)) != kSuccess) {
        return QV_FAIL(status);
    }
    pMember = QvJsonValue_member(pDocument, "root");
    if (!QvJsonValue_isEmpty(pMember) && (status = QvDatabaseProtocolSimulator_parse(handle, pDocument)) != kSuccess) {
        return QV_FAIL(status);
    }
    pMember = QvJsonValue_member(pDocument, "header");
    if (!QvJsonValue_isEmpty(pMember) && (status = calibration_textParse(contextOf(handle), pBuffer)) != kSuccess) {
        return QV_FAIL(status);
    }
    pMember = QvJsonValue_member(pDocument, "tuning");
    if (!QvJsonValue_isEmpty(pMember) && (status = QvDatabaseTuning_parse(handle, pMember)) != kSuccess) {
        return QV_FAIL(status);
    }
    return kSuccess;
}

/// Calibration, and what the setting's protocol asks for. Failures are traced by the caller.
int serializeMembers(QvDatabaseHandle_t handle, QvJsonValue_t* pDocument)
{
    QvDatabaseCalibration_t* pCalibration = nullptr;
    int status = queryRecord(handle, "CLB", &pCalibration);
    if (status != kSuccess) {
        return status;
    }
    status = QvDatabaseProtocolCalibration_serialize(pCalibration, pDocument);
    if (status != kSuccess) {
        return status;
    }
    QvDatabaseSetting_t* pSetting = nullptr;
    status = queryRecord(handle, "ST", &pSetting);
    if (status != kSuccess) {
        return status;
    }
    return pSetting->protocol != QvDatabaseSettingProtocol_Simulator
               ? QvDatabaseTuning_serialize(handle, pDocument)
               : QvDatabaseProtocolSimulator_serialize(handle, pDocument);
}

} // namespace

int QvDatabaseText_parse(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    if (handle == 0 || pBuffer == nullptr) {
        return kBadArgument;
    }
    const Context_t* pContext = contextOf(handle);
    if (pBuffer->pBegin != nullptr && *pBuffer->pBegin == '<') {
        return calibration_textParse(pContext, pBuffer);
    }
    QvJsonValue_t* pDocument = nullptr;
    int status =
        QvJsonReader_parse(pContext->hJsonReader, pBuffer->pBegin, pBuffer->pBegin + pBuffer->size, &pDocument);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = parseMembers(handle, pDocument, pBuffer);
    if (status != kSuccess) {
        return status; // the document is not released on this path
    }
    status = QvJsonValue_delete(&pDocument);
    return status == kSuccess ? status : QV_FAIL(status);
}

int QvDatabaseText_serialize(QvDatabaseHandle_t handle, QvCommonBuffer_t* pBuffer)
{
    if (handle == 0 || pBuffer == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pDocument = nullptr;
    int status = QvJsonValue_create(QvJsonValueType_Object, &pDocument);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvJsonValue_t* pVersion = QvJsonValue_member(pDocument, "version");
    status = version_serialize(handle, pVersion);
    if (status != kSuccess) {
        return QV_FAIL(status); // nor is it on this one, whose member is gone
    }
    status = serializeMembers(handle, pDocument);
    if (status == kSuccess) {
        status = QvJsonWriter_stringify(contextOf(handle)->hJsonWriter, pDocument, &pBuffer->pBegin);
    }
    if (status != kSuccess) {
        QvJsonValue_delete(&pDocument);
        return QV_FAIL(status);
    }
    pBuffer->size = std::strlen(pBuffer->pBegin);
    pBuffer->isAllocated = true;
    status = QvJsonValue_delete(&pDocument);
    return status == kSuccess ? status : QV_FAIL(status);
}
