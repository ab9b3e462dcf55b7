#include <qv_database_c/database_auto_green_equilibration.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoGreenEquilibration_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(hdr),
    QV_FIELD(gains),
    QV_FIELD(threshold),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoGreenEquilibration", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoGreenEquilibration_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoGreenEquilibration =
    QV_TABLE("QvDatabaseProtocolSimulator_autoGreenEquilibration", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoGreenEquilibration, simulator::kAutoGreenEquilibration)
