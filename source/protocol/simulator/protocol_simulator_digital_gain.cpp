#include <qv_database_c/database_digital_gain.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseDigitalGain_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(digitalGainB, "digital_gain_b"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable).asInteger(),
    QV_FIELD_KEY(digitalGainGb, "digital_gain_gb"),
    QV_FIELD_KEY(digitalGainGr, "digital_gain_gr"),
    QV_FIELD_KEY(digitalGainR, "digital_gain_r"),
};

} // namespace

extern constinit const TableOf<Record> kDigitalGain = QV_TABLE("QvDatabaseProtocolSimulator_digitalGain", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_digitalGain, simulator::kDigitalGain)
