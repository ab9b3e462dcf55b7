#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseColorCorrectionMatrix_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(ccMatrix, "ccmatrix"),
    QV_FIELD_KEY(ccOffset, "ccoffset"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
};

} // namespace

extern constinit const TableOf<Record> kColorCorrectionMatrix_1_1 =
    QV_TABLE("QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1, simulator::kColorCorrectionMatrix_1_1)
