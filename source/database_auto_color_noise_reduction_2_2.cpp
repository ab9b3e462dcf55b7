#include <qv_database_c/database_auto_color_noise_reduction_2_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoColorNoiseReduction_2_2_Table_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(cnrStrength),
    QV_FIELD(cSigmaLayer0),
    QV_FIELD(cSigmaLayer1),
    QV_FIELD(cSigmaLayer2),
    QV_FIELD(gains),
    QV_FIELD(hdr),
    QV_FIELD(textureMask),
};
// clang-format on

constexpr auto kTable = QV_TABLE("QvDatabaseAutoColorNoiseReduction_2_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoColorNoiseReduction_2_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoColorNoiseReduction_2_2 =
    QV_TABLE("QvDatabaseAutoColorNoiseReduction_2_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoColorNoiseReduction_2_2, tuning::kAutoColorNoiseReduction_2_2)
QV_CLEARED_RESET(QvDatabaseAutoColorNoiseReduction_2_2)
