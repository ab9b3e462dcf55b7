#include <qv_database_c/database_lens_shading_correction_4.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseLensShadingCorrection_4_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"), QV_FIELD(enable).asInteger(),  QV_FIELD(matrix),
    QV_FIELD_KEY(xSize, "x_size"), QV_FIELD_KEY(ySize, "y_size"),
};

} // namespace

constinit const TableOf<Record> kLensShadingCorrection_4{"QvDatabaseProtocolSimulator_lensShadingCorrection_4",
                                                         __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_lensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                              QvDatabaseLensShadingCorrection_4_t* pConfig)
{
    return readRecord(simulator::kLensShadingCorrection_4, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_lensShadingCorrection_4_serialize(QvDatabaseLensShadingCorrection_4_t* pConfig,
                                                                  QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kLensShadingCorrection_4, pConfig, pValue);
}
