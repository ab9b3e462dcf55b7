#include <cstring>

#include <qv_json_c/json_reader.h>

#include "database_status.h"
#include "database_trace.h"
#include "database_walk.h"
#include "protocol_calibration.h"

int qv::database::parseCalibration(QvJsonValue_t* pDocument, QvDatabaseCalibration_t* pConfig)
{
    QV_TRY_AS("QvDatabaseProtocolCalibration_parse", QvDatabaseProtocolCalibrationJson_parse(pDocument, pConfig));
    return kSuccess;
}

using namespace qv::database;

// A reader of its own, not the database's, reads the text. A failure returns at once and releases nothing.
int QvDatabaseProtocolCalibration_parse(const char* pText, QvDatabaseCalibration_t* pConfig)
{
    if (pText == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    QvJsonReaderHandle_t hReader = 0;
    QV_TRY(QvJsonReader_open(&hReader));
    QvJsonValue_t* pDocument = nullptr;
    QV_TRY(QvJsonReader_parse(hReader, pText, pText + std::strlen(pText), &pDocument));
    QV_TRY(QvJsonReader_close(&hReader));
    const int status = parseCalibration(pDocument, pConfig);
    if (status != kSuccess) {
        return status;
    }
    QV_TRY(QvJsonValue_delete(&pDocument));
    return kSuccess;
}

int QvDatabaseProtocolCalibration_serialize(QvDatabaseCalibration_t* pConfig, QvJsonValue_t* pValue)
{
    return QvDatabaseProtocolCalibrationJson_serialize(pConfig, pValue);
}

int QvDatabaseProtocolCalibration_reset(QvDatabaseCalibration_t* pConfig)
{
    return clearRecord(pConfig);
}
