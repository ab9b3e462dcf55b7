#include <qv_database_c/database_auto_gamma_correction_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoGammaCorrection_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(curve),
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoGammaCorrection_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoGammaCorrection_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoGammaCorrection_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoGammaCorrection_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoGammaCorrection_2, simulator::kAutoGammaCorrection_2)
