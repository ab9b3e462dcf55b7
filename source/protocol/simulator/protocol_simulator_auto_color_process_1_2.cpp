#include <qv_database_c/database_auto_color_process_1_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoColorProcess_1_2_Table_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(bright),
    QV_FIELD(contrast),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD(hue),
    QV_FIELD(saturation),
};
// clang-format on

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoColorProcess_1_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoColorProcess_1_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoColorProcess_1_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoColorProcess_1_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoColorProcess_1_2, simulator::kAutoColorProcess_1_2)
