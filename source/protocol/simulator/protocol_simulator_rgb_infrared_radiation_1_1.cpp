#include <qv_database_c/database_rgb_infrared_radiation_1_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseRgbInfraredRadiation_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(ccMatrix, "ccmatrix"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(dpccMidTh, "dpcc_mid_th"),
    QV_FIELD_KEY(dpccTh, "dpcc_th"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(irBayerPattern, "irbayer_pattern"),
    QV_FIELD_KEY(irThr, "ir_threshold"),
    QV_FIELD_KEY(lThr, "l_threshold"),
    QV_FIELD_KEY(outRgbPattern, "out_rgb_pattern"),
};

} // namespace

extern constinit const TableOf<Record> kRgbInfraredRadiation_1_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1, simulator::kRgbInfraredRadiation_1_1)
