#include <qv_database_c/database_color_noise_reduction_2_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseColorNoiseReduction_2_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(sigmaLayer),
    QV_FIELD(strength1),
    QV_FIELD(textureMaskSelect),
};

} // namespace

extern constinit const TableOf<Record> kColorNoiseReduction_2_2 = QV_TABLE("QvDatabaseColorNoiseReduction_2_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseColorNoiseReduction_2_2, tuning::kColorNoiseReduction_2_2)
QV_CLEARED_RESET(QvDatabaseColorNoiseReduction_2_2)
