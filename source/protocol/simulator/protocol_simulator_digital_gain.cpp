#include <qv_database_c/database_digital_gain.h>
#include <qv_database_c/protocol_simulator.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

using Record = QvDatabaseDigitalGain_t;

constexpr Field kRows[] = {
    QV_FIELD_KEY(digitalGainB, "digital_gain_b"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(digitalGainGb, "digital_gain_gb"),
    QV_FIELD_KEY(digitalGainGr, "digital_gain_gr"),
    QV_FIELD_KEY(digitalGainR, "digital_gain_r"),
};

} // namespace

constinit const TableOf<Record> kDigitalGain{"QvDatabaseProtocolSimulator_digitalGain", __FILE__, kRows};

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_digitalGain_parse(QvJsonValue_t* pValue, QvDatabaseDigitalGain_t* pConfig)
{
    return readRecord(simulator::kDigitalGain, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_digitalGain_serialize(QvDatabaseDigitalGain_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kDigitalGain, pConfig, pValue);
}
