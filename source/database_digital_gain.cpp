#include <qv_database_c/database_digital_gain.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseDigitalGain_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(digitalGainB),
    QV_FIELD(digitalGainGb),
    QV_FIELD(digitalGainGr),
    QV_FIELD(digitalGainR),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kDigitalGain = QV_TABLE("QvDatabaseDigitalGain", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseDigitalGain, tuning::kDigitalGain)
QV_CLEARED_RESET(QvDatabaseDigitalGain)
