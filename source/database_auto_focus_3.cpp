#include <qv_database_c/database_auto_focus_3.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseAutoFocus_3_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),      QV_FIELD(weightWindow),   QV_FIELD(cStableTolerance), QV_FIELD(cPointsOfCurve),
    QV_FIELD(focalFilter), QV_FIELD(shapFilter),     QV_FIELD(focalMax),         QV_FIELD(focalMin),
    QV_FIELD(cMotionThr),  QV_FIELD(focalStableThr), QV_FIELD(cMseTolerance),    QV_FIELD(cPdConfThr),
    QV_FIELD(pdFocal),     QV_FIELD(pdDistance),     QV_FIELD(pdShiftThr),       QV_FIELD(pdStableCountMax),
    QV_FIELD(mode),        QV_FIELD(pdRoiIdx),
};

} // namespace

constinit const TableOf<Record> kAutoFocus_3{"QvDatabaseAutoFocus_3", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoFocus_3_parse(QvJsonValue_t* pValue, QvDatabaseAutoFocus_3_t* pConfig)
{
    return readRecord(tuning::kAutoFocus_3, pValue, pConfig);
}

int QvDatabaseAutoFocus_3_serialize(QvDatabaseAutoFocus_3_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoFocus_3, pConfig, pValue);
}

int QvDatabaseAutoFocus_3_reset(QvDatabaseAutoFocus_3_t* pConfig)
{
    return clearRecord(pConfig);
}
