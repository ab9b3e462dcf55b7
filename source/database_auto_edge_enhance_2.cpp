#include <qv_database_c/database_auto_edge_enhance_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoEdgeEnhance_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(eeStrength),
    QV_FIELD(eeSrcStrength),
    QV_FIELD(eeYUpGain),
    QV_FIELD(eeYDownGain),
    QV_FIELD(eeUVGain),
    QV_FIELD(eeEdgeGain),
    QV_FIELD(caEnable).asInteger(), // lists of numbers in the document
    QV_FIELD(caCurve),
    QV_FIELD(dciEnable).asInteger(),
    QV_FIELD(dciCurve),
    QV_FIELD(hdr).readWhileWriting(), // a saved row holds it empty, so that a load keeps the flag
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoEdgeEnhance_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoEdgeEnhance_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoEdgeEnhance_2{"QvDatabaseAutoEdgeEnhance_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoEdgeEnhance_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoEdgeEnhance_2_t* pConfig)
{
    return readRecord(tuning::kAutoEdgeEnhance_2, pValue, pConfig);
}

int QvDatabaseAutoEdgeEnhance_2_serialize(QvDatabaseAutoEdgeEnhance_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoEdgeEnhance_2, pConfig, pValue);
}

int QvDatabaseAutoEdgeEnhance_2_reset(QvDatabaseAutoEdgeEnhance_2_t* pConfig)
{
    return clearRecord(pConfig);
}

int QvDatabaseAutoEdgeEnhance_2_dataChanged(QvDatabaseAutoEdgeEnhance_2_t* pConfig)
{
    return pConfig == nullptr ? kBadArgument : kSuccess;
}
