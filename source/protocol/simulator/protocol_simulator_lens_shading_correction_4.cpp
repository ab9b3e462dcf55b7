#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseLensShadingCorrection_4_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(matrix),
    QV_FIELD_KEY(xSize, "x_size"),
    QV_FIELD_KEY(ySize, "y_size"),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kLensShadingCorrection_4 =
    QV_TABLE("QvDatabaseProtocolSimulator_lensShadingCorrection_4", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_lensShadingCorrection_4, simulator::kLensShadingCorrection_4)
