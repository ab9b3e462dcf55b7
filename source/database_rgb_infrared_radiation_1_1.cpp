#include <qv_database_c/database_rgb_infrared_radiation_1_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseRgbInfraredRadiation_1_1_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(ccMatrix),
    QV_FIELD(dpccMidTh),
    QV_FIELD(dpccTh),
    QV_FIELD(irThr),
    QV_FIELD(lThr),
    QV_FIELD(irBayerPattern),
    QV_FIELD(outRgbPattern),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kRgbInfraredRadiation_1_1 =
    QV_TABLE("QvDatabaseRgbInfraredRadiation_1_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseRgbInfraredRadiation_1_1, tuning::kRgbInfraredRadiation_1_1)
QV_CLEARED_RESET(QvDatabaseRgbInfraredRadiation_1_1)
