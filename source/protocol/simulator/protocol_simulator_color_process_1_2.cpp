#include <qv_database_c/database_color_process_1_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseColorProcess_1_2_t;

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

constinit const TableOf<Record> kColorProcess_1_2{"QvDatabaseProtocolSimulator_colorProcess_1_2", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_colorProcess_1_2_parse(QvJsonValue_t* pValue, QvDatabaseColorProcess_1_2_t* pConfig)
{
    return readRecord(simulator::kColorProcess_1_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_colorProcess_1_2_serialize(QvDatabaseColorProcess_1_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kColorProcess_1_2, pConfig, pValue);
}
