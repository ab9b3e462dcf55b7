#include <qv_database_c/database_auto_color_correction_matrix_1_1.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoColorCorrectionMatrix_1_1_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoColorCorrectionMatrix_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_FIELD(damping),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoColorCorrectionMatrix_1_1{
    "QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                                    QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig)
{
    return readRecord(simulator::kAutoColorCorrectionMatrix_1_1, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1_serialize(
    QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoColorCorrectionMatrix_1_1, pConfig, pValue);
}
