#include <qv_database_c/database_auto_exposure_3.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoExposure_3_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(setPoint),
    QV_FIELD(tolerance),
    QV_FIELD(dampOver),
    QV_FIELD(dampUnder),
    QV_FIELD(dampUnderRatio),
    QV_FIELD(dampUnderGain),
    QV_FIELD(dampOverRatio),
    QV_FIELD(dampOverGain),
    QV_FIELD(motionFilter),
    QV_FIELD(motionThr),
    QV_FIELD(targetFilter),
    QV_FIELD(lowlightLinearRepress),
    QV_FIELD(lowlightLinearGain),
    QV_FIELD(lowlightLinearLevel),
    QV_FIELD(lowlightHdrRepress),
    QV_FIELD(lowlightHdrGain),
    QV_FIELD(lowlightHdrLevel),
    QV_FIELD(wdrContrastMin),
    QV_FIELD(wdrContrastMax),
    QV_FIELD(frameCalEnable),
    QV_FIELD(autoHdrEnable),
    QV_FIELD(expv2WindowWeight),
    QV_FIELD(roiNum),
    QV_FIELD(roiWeight),
    QV_FIELD(roiWindow),
    QV_FIELD_KEY(antiFlickerMode, "antiFlikerMode"),
    QV_FIELD(semMode),
    QV_FIELD(userDefinedPeriodus),
};

} // namespace

extern constinit const TableOf<Record> kAutoExposure_3 = QV_TABLE("QvDatabaseAutoExposure_3", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoExposure_3, tuning::kAutoExposure_3)
QV_CLEARED_RESET(QvDatabaseAutoExposure_3)
