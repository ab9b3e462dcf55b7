#include <qv_database_c/database_auto_color_correction_matrix_1_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoColorCorrectionMatrix_1_1_Table_t);

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(hdr),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoColorCorrectionMatrix_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_FIELD(damping),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoColorCorrectionMatrix_1_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1, simulator::kAutoColorCorrectionMatrix_1_1)
