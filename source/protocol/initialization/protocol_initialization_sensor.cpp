#include <qv_database_c/protocol_initialization.h>

#include "database_forms.h"
#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

using Record = QvDatabaseSensor_t;

constexpr Field kRows[] = {
    QV_FIELD(driverName),
    QV_FIELD(modeIdx),
    QV_FIELD(testPattern.enable),
    QV_FIELD(testPattern.type),
};

} // namespace

constinit const TableOf<Record> kSensor{"QvDatabaseProtocolInitialization_sensor", __FILE__, kRows};

} // namespace qv::database::initialization

using namespace qv::database;

int QvDatabaseProtocolInitialization_sensor_parse(QvInitializationSection_t* pSection, QvDatabaseSensor_t* pConfig)
{
    return readSection(initialization::kSensor, pSection, pConfig);
}

int QvDatabaseProtocolInitialization_sensor_serialize(QvDatabaseSensor_t* pConfig, QvInitializationSection_t* pSection)
{
    return writeSection(initialization::kSensor, pConfig, pSection);
}
