#include <qv_database_c/database_auto_exposure_3.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseAutoExposure_3_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(antiFlickerMode, "antiFlikerMode"),
    QV_FIELD(autoHdrEnable),
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(dampOver),
    QV_FIELD(dampOverGain),
    QV_FIELD(dampOverRatio),
    QV_FIELD(dampUnder),
    QV_FIELD(dampUnderGain),
    QV_FIELD(dampUnderRatio),
    QV_FIELD(enable),
    QV_FIELD_KEY(expv2WindowWeight, "expV2WindowWeight"),
    QV_FIELD(frameCalEnable),
    QV_FIELD(lowlightHdrGain),
    QV_FIELD(lowlightHdrRepress),
    QV_FIELD(lowlightLinearGain),
    QV_FIELD(lowlightLinearRepress),
    QV_FIELD(lowlightHdrLevel),
    QV_FIELD(lowlightLinearLevel),
    QV_FIELD(motionFilter),
    QV_FIELD_KEY(motionThr, "motionThreshold"),
    QV_FIELD_KEY(roiNum, "roiNumber"),
    QV_FIELD(roiWeight),
    QV_FIELD(roiWindow),
    QV_FIELD(semMode),
    QV_FIELD(setPoint),
    QV_FIELD(targetFilter),
    QV_FIELD(tolerance),
    QV_FIELD_KEY(userDefinedPeriodus, "FlickerUseDefinedPeriodus"),
    QV_FIELD(wdrContrastMax),
    QV_FIELD(wdrContrastMin),
};

} // namespace

extern constinit const TableOf<Record> kAutoExposure_3 = QV_TABLE("QvDatabaseProtocolSimulator_autoExposure_3", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoExposure_3, simulator::kAutoExposure_3)
