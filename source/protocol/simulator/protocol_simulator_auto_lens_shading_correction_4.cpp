#include <qv_database_c/database_auto_lens_shading_correction_4.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoLensShadingCorrection_4_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoLensShadingCorrection_4", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoLensShadingCorrection_4_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(damping),
    QV_FIELD(enable),
    QV_FIELD(interMode),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoLensShadingCorrection_4 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoLensShadingCorrection_4", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoLensShadingCorrection_4, simulator::kAutoLensShadingCorrection_4)
