#include <qv_database_c/database_auto_color_noise_reduction_2_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoColorNoiseReduction_2_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(cnrStrength, "cnr_strength"),
    QV_FIELD_KEY(cSigmaLayer0, "c_sigma_layer0"),
    QV_FIELD_KEY(cSigmaLayer1, "c_sigma_layer1"),
    QV_FIELD_KEY(cSigmaLayer2, "c_sigma_layer2"),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD_KEY(textureMask, "texture_mask"),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoColorNoiseReduction_2_2_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoColorNoiseReduction_2_2{"QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2",
                                                             __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig)
{
    return readRecord(simulator::kAutoColorNoiseReduction_2_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2_serialize(QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig,
                                                                      QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoColorNoiseReduction_2_2, pConfig, pValue);
}
