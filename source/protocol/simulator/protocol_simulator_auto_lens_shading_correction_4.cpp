#include <qv_database_c/database_auto_lens_shading_correction_4.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoLensShadingCorrection_4_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoLensShadingCorrection_4", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoLensShadingCorrection_4_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(damping),
    QV_FIELD(enable),
    QV_FIELD(interMode),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoLensShadingCorrection_4{"QvDatabaseProtocolSimulator_autoLensShadingCorrection_4",
                                                             __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoLensShadingCorrection_4_parse(QvJsonValue_t* pValue,
                                                                  QvDatabaseAutoLensShadingCorrection_4_t* pConfig)
{
    return readRecord(simulator::kAutoLensShadingCorrection_4, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoLensShadingCorrection_4_serialize(QvDatabaseAutoLensShadingCorrection_4_t* pConfig,
                                                                      QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoLensShadingCorrection_4, pConfig, pValue);
}
