#include <qv_database_c/database_color_noise_reduction_2_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseColorNoiseReduction_2_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(sigmaLayer, "c_sigma_layer"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(strength1, "cnr_strength"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(textureMaskSelect, "texture_mask_select"),
};

} // namespace

extern constinit const TableOf<Record> kColorNoiseReduction_2_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_colorNoiseReduction_2_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_colorNoiseReduction_2_2, simulator::kColorNoiseReduction_2_2)
