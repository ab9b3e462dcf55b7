#include <qv_database_c/database_auto_focus_measurement.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseAutoFocusMeasurement_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD_KEY(id, "afmWindowId"),
    QV_FIELD(threshold),
    QV_FIELD_KEY(window, "afmWindow"),
};

} // namespace

constinit const TableOf<Record> kAutoFocusMeasurement{"QvDatabaseProtocolSimulator_autoFocusMeasurement", __FILE__,
                                                      kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoFocusMeasurement_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseAutoFocusMeasurement_t* pConfig)
{
    return readRecord(simulator::kAutoFocusMeasurement, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoFocusMeasurement_serialize(QvDatabaseAutoFocusMeasurement_t* pConfig,
                                                               QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoFocusMeasurement, pConfig, pValue);
}
