#include <qv_database_c/database_auto_color_noise_reduction_2_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoColorNoiseReduction_2_2_Table_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(cnrStrength, "cnr_strength"),
    QV_FIELD_KEY(cSigmaLayer0, "c_sigma_layer0"),
    QV_FIELD_KEY(cSigmaLayer1, "c_sigma_layer1"),
    QV_FIELD_KEY(cSigmaLayer2, "c_sigma_layer2"),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD_KEY(textureMask, "texture_mask"),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoColorNoiseReduction_2_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoColorNoiseReduction_2_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2, simulator::kAutoColorNoiseReduction_2_2)
