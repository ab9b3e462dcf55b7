#include <qv_database_c/database_high_dynamic_range_2_1.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseHighDynamicRange_2_1_t;

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

constinit const TableOf<Record> kHighDynamicRange_2_1{"QvDatabaseProtocolSimulator_highDynamicRange_2_1", __FILE__,
                                                      kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_highDynamicRange_2_1_parse(QvJsonValue_t* pValue,
                                                           QvDatabaseHighDynamicRange_2_1_t* pConfig)
{
    return readRecord(simulator::kHighDynamicRange_2_1, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_highDynamicRange_2_1_serialize(QvDatabaseHighDynamicRange_2_1_t* pConfig,
                                                               QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kHighDynamicRange_2_1, pConfig, pValue);
}
