#include <cstdint>

#include <qv_database_c/database_compand_1_1.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseCompand_1_1_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD_KEY(expandCurveX, "expand_curve_x"),
    QV_FIELD_KEY(expandCurveY, "expand_curve_y"),
    QV_FIELD_KEY(enable, "expand_enable"),
};

} // namespace

extern constinit const TableOf<Record> kCompand_1_1 = QV_TABLE("QvDatabaseProtocolSimulator_compand_1_1", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_compand_1_1_parse(QvJsonValue_t* pValue, QvDatabaseCompand_1_1_t* pConfig)
{
    const int status = readRecord(simulator::kCompand_1_1, pValue, pConfig);
    if (status != kSuccess) {
        return status;
    }
    // A gap in the curve repeats the last point before it that is not zero. Writing has no counterpart.
    std::uint32_t running = 0;
    for (std::uint32_t& y : pConfig->expandCurveY) {
        if (y != 0) {
            running = y;
        }
        y = running;
    }
    return kSuccess;
}

int QvDatabaseProtocolSimulator_compand_1_1_serialize(QvDatabaseCompand_1_1_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kCompand_1_1, pConfig, pValue);
}
