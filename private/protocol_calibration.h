#pragma once

#include <qv_database_c/protocol_calibration.h>
#include <qv_json_c/json_value.h>

namespace qv::database {

/// What QvDatabaseProtocolCalibration_parse makes of the text of this document, for who has its tree at hand already:
/// the same record, status and traces without reading the text once more. The tree stays the caller's.
int parseCalibration(QvJsonValue_t* pDocument, QvDatabaseCalibration_t* pConfig);

} // namespace qv::database
