#include <qv_database_c/database_color_correction_matrix_1_1.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseColorCorrectionMatrix_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(ccMatrix, "ccmatrix"),
    QV_FIELD_KEY(ccOffset, "ccoffset"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
};

} // namespace

constinit const TableOf<Record> kColorCorrectionMatrix_1_1{"QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1",
                                                           __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                                QvDatabaseColorCorrectionMatrix_1_1_t* pConfig)
{
    return readRecord(simulator::kColorCorrectionMatrix_1_1, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1_serialize(QvDatabaseColorCorrectionMatrix_1_1_t* pConfig,
                                                                    QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kColorCorrectionMatrix_1_1, pConfig, pValue);
}
