#include <qv_database_c/database_auto_2d_noise_reduction_5_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAuto2DNoiseReduction_5_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD(hdr),
    QV_FIELD_KEY(lumaCurveX, "luma_curve_x"),
    QV_FIELD_KEY(lumaCurveY, "luma_curve_y"),
    QV_FIELD(sigma),
    QV_FIELD(strength),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAuto2DNoiseReduction_5_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAuto2DNoiseReduction_5_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2, simulator::kAuto2DNoiseReduction_5_2)
