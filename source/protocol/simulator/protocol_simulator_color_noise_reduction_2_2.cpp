#include <qv_database_c/database_color_noise_reduction_2_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseColorNoiseReduction_2_2_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(sigmaLayer, "c_sigma_layer"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(strength1, "cnr_strength"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(textureMaskSelect, "texture_mask_select"),
};

} // namespace

constinit const TableOf<Record> kColorNoiseReduction_2_2{"QvDatabaseProtocolSimulator_colorNoiseReduction_2_2",
                                                         __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_colorNoiseReduction_2_2_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseColorNoiseReduction_2_2_t* pConfig)
{
    return readRecord(simulator::kColorNoiseReduction_2_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_colorNoiseReduction_2_2_serialize(QvDatabaseColorNoiseReduction_2_2_t* pConfig,
                                                                  QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kColorNoiseReduction_2_2, pConfig, pValue);
}
