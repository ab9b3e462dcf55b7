#include <qv_database_c/database_auto_focus_measurement.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseAutoFocusMeasurement_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD_KEY(id, "afmWindowId"),
    QV_FIELD(threshold),
    QV_FIELD_KEY(window, "afmWindow"),
};

} // namespace

extern constinit const TableOf<Record> kAutoFocusMeasurement =
    QV_TABLE("QvDatabaseProtocolSimulator_autoFocusMeasurement", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoFocusMeasurement, simulator::kAutoFocusMeasurement)
