#include <qv_database_c/database_auto_edge_enhance_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
QV_RECORD(QvDatabaseAutoEdgeEnhance_2_Table_t);

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

constexpr auto kTable = QV_TABLE("QvDatabaseAutoEdgeEnhance_2", kRows);
} // namespace schedule

QV_RECORD(QvDatabaseAutoEdgeEnhance_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

extern constinit const TableOf<Record> kAutoEdgeEnhance_2 = QV_TABLE("QvDatabaseAutoEdgeEnhance_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoEdgeEnhance_2, tuning::kAutoEdgeEnhance_2)
QV_CLEARED_RESET(QvDatabaseAutoEdgeEnhance_2)

int QvDatabaseAutoEdgeEnhance_2_dataChanged(QvDatabaseAutoEdgeEnhance_2_t* pConfig)
{
    return pConfig == nullptr ? kBadArgument : kSuccess;
}
