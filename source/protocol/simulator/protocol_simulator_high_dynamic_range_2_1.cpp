#include <qv_database_c/database_high_dynamic_range_2_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseHighDynamicRange_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD(bypass),
    QV_FIELD_KEY(bypassSelect, "bypass_select"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(colorWeight, "color_weight"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(extendBit, "extend_bit"),
    QV_FIELD(ratio),
    QV_FIELD_KEY(sensorType, "sensor_type"),
    QV_FIELD_KEY(transRange, "trans_range"),
};

} // namespace

extern constinit const TableOf<Record> kHighDynamicRange_2_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_highDynamicRange_2_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_highDynamicRange_2_1, simulator::kHighDynamicRange_2_1)
