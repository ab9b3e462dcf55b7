#include <qv_database_c/database_auto_focus_3.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseAutoFocus_3_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD_KEY(cMotionThr, "cMotionThreshold"),
    QV_FIELD(cMseTolerance),
    QV_FIELD_KEY(cPdConfThr, "cPdConfThreshold"),
    QV_FIELD(cPointsOfCurve),
    QV_FIELD(cStableTolerance),
    QV_FIELD(enable),
    QV_FIELD(focalFilter),
    QV_FIELD_KEY(focalStableThr, "focalStableThreshold"),
    QV_FIELD_KEY(focalMax, "maxFocal"),
    QV_FIELD_KEY(focalMin, "minFocal"),
    QV_FIELD(mode),
    QV_FIELD_KEY(pdDistance, "PdDistance"),
    QV_FIELD_KEY(pdFocal, "PdFocal"),
    QV_FIELD(pdRoiIdx),
    QV_FIELD_KEY(pdShiftThr, "PdShiftThreshold"),
    QV_FIELD_KEY(pdStableCountMax, "PdStablecountMax"),
    QV_FIELD(shapFilter),
    QV_FIELD(weightWindow),
};

} // namespace

extern constinit const TableOf<Record> kAutoFocus_3 = QV_TABLE("QvDatabaseProtocolSimulator_autoFocus_3", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoFocus_3, simulator::kAutoFocus_3)
