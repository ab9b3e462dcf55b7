#include <qv_database_c/database_auto_focus_3.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoFocus_3_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(weightWindow),
    QV_FIELD(cStableTolerance),
    QV_FIELD(cPointsOfCurve),
    QV_FIELD(focalFilter),
    QV_FIELD(shapFilter),
    QV_FIELD(focalMax),
    QV_FIELD(focalMin),
    QV_FIELD(cMotionThr),
    QV_FIELD(focalStableThr),
    QV_FIELD(cMseTolerance),
    QV_FIELD(cPdConfThr),
    QV_FIELD(pdFocal),
    QV_FIELD(pdDistance),
    QV_FIELD(pdShiftThr),
    QV_FIELD(pdStableCountMax),
    QV_FIELD(mode),
    QV_FIELD(pdRoiIdx),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kAutoFocus_3 = QV_TABLE("QvDatabaseAutoFocus_3", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoFocus_3, tuning::kAutoFocus_3)
QV_CLEARED_RESET(QvDatabaseAutoFocus_3)
