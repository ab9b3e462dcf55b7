#include <qv_database_c/database_3d_noise_reduction_2_1.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabase3DNoiseReduction_2_1_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(motionDilateEn).asInteger(), // a number in the document
    QV_FIELD(strength),
    QV_FIELD(motionInv),
    QV_FIELD(delta),
    QV_FIELD(updateTemporal),
    QV_FIELD(strengthCurveTemporal),
    QV_FIELD(temporalCurve),
    QV_FIELD(rangeT),
};

} // namespace

extern constinit const TableOf<Record> k3DNoiseReduction_2_1 = QV_TABLE("QvDatabase3DNoiseReduction_2_1", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabase3DNoiseReduction_2_1, tuning::k3DNoiseReduction_2_1)
QV_CLEARED_RESET(QvDatabase3DNoiseReduction_2_1)
