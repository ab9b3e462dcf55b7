#include <qv_database_c/protocol_initialization.h>

#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

QV_RECORD(QvDatabaseSensor_t);

constexpr Field kRows[] = {
    QV_FIELD(driverName),
    QV_FIELD(modeIdx),
    QV_FIELD(testPattern.enable),
    QV_FIELD(testPattern.type),
};

} // namespace

extern constinit const TableOf<Record> kSensor = QV_TABLE("QvDatabaseProtocolInitialization_sensor", kRows);

} // namespace qv::database::initialization

using namespace qv::database;

QV_SECTION_CODECS(QvDatabaseProtocolInitialization_sensor, initialization::kSensor)
