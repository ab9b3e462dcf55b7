#include <qv_database_c/database_color_process_1_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseColorProcess_1_2_t);

constexpr Field kRows[] = {
    QV_FIELD(bright),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(contrast),
    QV_FIELD(enable).asInteger(),
    QV_FIELD(hue),
    QV_FIELD(saturation),
    QV_FIELD_KEY(useOutConvMatrix, "use_out_conv_matrix"),
    QV_FIELD_KEY(rgbToyuvMatrix, "RGB2YUV_matrix"),
    QV_FIELD(yuvRange),
    QV_FIELD(gamut),
};

} // namespace

extern constinit const TableOf<Record> kColorProcess_1_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_colorProcess_1_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_colorProcess_1_2, simulator::kColorProcess_1_2)
