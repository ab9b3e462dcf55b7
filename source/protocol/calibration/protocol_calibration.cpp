#include <cstring>

#include <qv_database_c/protocol_calibration.h>
#include <qv_json_c/json_reader.h>

#include "database_status.h"
#include "database_trace.h"
#include "database_walk.h"

using namespace qv::database;

// A reader of its own, not the database's, reads the text. A failure returns at once and releases nothing.
int QvDatabaseProtocolCalibration_parse(const char* pText, QvDatabaseCalibration_t* pConfig)
{
    if (pText == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    QvJsonReaderHandle_t hReader = 0;
    int status = QvJsonReader_open(&hReader);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvJsonValue_t* pDocument = nullptr;
    status = QvJsonReader_parse(hReader, pText, pText + std::strlen(pText), &pDocument);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonReader_close(&hReader);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvDatabaseProtocolCalibrationJson_parse(pDocument, pConfig);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonValue_delete(&pDocument);
    return status == kSuccess ? status : QV_FAIL(status);
}

int QvDatabaseProtocolCalibration_serialize(QvDatabaseCalibration_t* pConfig, QvJsonValue_t* pValue)
{
    return QvDatabaseProtocolCalibrationJson_serialize(pConfig, pValue);
}

int QvDatabaseProtocolCalibration_reset(QvDatabaseCalibration_t* pConfig)
{
    return clearRecord(pConfig);
}
