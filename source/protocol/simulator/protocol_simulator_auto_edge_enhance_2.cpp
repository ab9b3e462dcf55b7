#include <qv_database_c/database_auto_edge_enhance_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoEdgeEnhance_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(caCurve, "ca_curve"),
    QV_FIELD_KEY(caEnable, "ca_enable").asInteger(),
    QV_FIELD_KEY(dciCurve, "dci_curve"),
    QV_FIELD_KEY(dciEnable, "dci_enable").asInteger(),
    QV_FIELD_KEY(eeEdgeGain, "ee_edge_gain"),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD_KEY(eeSrcStrength, "ee_src_strength"),
    QV_FIELD_KEY(eeStrength, "ee_strength"),
    QV_FIELD_KEY(eeUVGain, "ee_uv_gain"),
    QV_FIELD_KEY(eeYDownGain, "ee_y_down_gain"),
    QV_FIELD_KEY(eeYUpGain, "ee_y_up_gain"),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoEdgeEnhance_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoEdgeEnhance_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoEdgeEnhance_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoEdgeEnhance_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoEdgeEnhance_2, simulator::kAutoEdgeEnhance_2)
