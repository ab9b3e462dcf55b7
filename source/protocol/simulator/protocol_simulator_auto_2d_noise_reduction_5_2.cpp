#include <qv_database_c/database_auto_2d_noise_reduction_5_2.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace schedule {
using Record = QvDatabaseAuto2DNoiseReduction_5_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(gain, "gains"),
    QV_FIELD(hdr),
    QV_FIELD_KEY(lumaCurveX, "luma_curve_x"),
    QV_FIELD_KEY(lumaCurveY, "luma_curve_y"),
    QV_FIELD(sigma),
    QV_FIELD(strength),
};

constexpr TableOf<Record> kTable{"QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAuto2DNoiseReduction_5_2_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAuto2DNoiseReduction_5_2{"QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2",
                                                          __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2_parse(QvJsonValue_t* pValue,
                                                               QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig)
{
    return readRecord(simulator::kAuto2DNoiseReduction_5_2, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2_serialize(QvDatabaseAuto2DNoiseReduction_5_2_t* pConfig,
                                                                   QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAuto2DNoiseReduction_5_2, pConfig, pValue);
}
