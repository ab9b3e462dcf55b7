#include <qv_database_c/database_auto_gamma_correction_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAutoGammaCorrection_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(curve),
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_autoGammaCorrection_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoGammaCorrection_2_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoGammaCorrection_2{"QvDatabaseProtocolSimulator_autoGammaCorrection_2", __FILE__,
                                                       kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoGammaCorrection_2_parse(QvJsonValue_t* pValue,
                                                            QvDatabaseAutoGammaCorrection_2_t* pConfig)
{
    return readRecord(simulator::kAutoGammaCorrection_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoGammaCorrection_2_serialize(QvDatabaseAutoGammaCorrection_2_t* pConfig,
                                                                QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoGammaCorrection_2, pConfig, pValue);
}
