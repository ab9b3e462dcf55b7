#include <qv_database_c/database_auto_edge_enhance_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoEdgeEnhance_2_Table_t;

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

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoEdgeEnhance_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoEdgeEnhance_2_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoEdgeEnhance_2{"QvDatabaseProtocolSimulator_autoEdgeEnhance_2", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoEdgeEnhance_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoEdgeEnhance_2_t* pConfig)
{
    return readRecord(simulator::kAutoEdgeEnhance_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoEdgeEnhance_2_serialize(QvDatabaseAutoEdgeEnhance_2_t* pConfig,
                                                            QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoEdgeEnhance_2, pConfig, pValue);
}
