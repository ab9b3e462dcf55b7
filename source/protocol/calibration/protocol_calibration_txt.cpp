// Finds a keyed list in brackets in plain calibration text. Items are separated by white space and nothing else.

#include <cctype>
#include <cstdio>
#include <cstring>

#include <qv_common_c/common_dqueue.h>
#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/protocol_calibration.h>

#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

namespace {

bool isSpace(char c)
{
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

/// Pushes the place of the next item between pBegin and pEnd, both included, and gives the place behind it.
char* extractItem(char* pBegin, char* pEnd, QvCommonDQueueHandle_t hDQueue)
{
    while (pBegin <= pEnd && isSpace(*pBegin)) {
        ++pBegin;
    }
    if (pBegin > pEnd) {
        return pBegin;
    }
    void* pItem = pBegin;
    const int status = QvCommonDQueue_pushBack(hDQueue, &pItem);
    if (status != kSuccess) {
        QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, __LINE__, __func__);
        std::fprintf(QvCommonTracer_file(hTracer), "QvCommonDQueue_pushBack() = %s", QvCommonError_text(status));
    }
    while (pBegin <= pEnd && !isSpace(*pBegin)) {
        ++pBegin;
    }
    return pBegin;
}

} // namespace

int QvDatabaseCalibrationTxt_extractArray(QvCommonBuffer_t* pBuffer, const char* pKey, QvCommonDQueueHandle_t hDQueue)
{
    char* pFound = std::strstr(pBuffer->pBegin, pKey);
    if (pFound == nullptr) {
        return QV_FAIL(kKeyMissing);
    }
    char* pOpen = std::strchr(pFound, '[');
    if (pOpen == nullptr) {
        return QV_FAIL(kKeyMissing);
    }
    char* pClose = std::strchr(pOpen, ']');
    if (pClose == nullptr) {
        return QV_FAIL(kKeyMissing);
    }
    char* pEnd = pClose - 1;
    char* pCursor = pOpen + 1;
    while (pCursor <= pEnd) {
        pCursor = extractItem(pCursor, pEnd, hDQueue);
    }
    return kSuccess;
}
