#include <qv_database_c/database_auto_defect_pixel_cluster_correction.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseAutoDefectPixelClusterCorrection_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(class_, "classname"),
    QV_FIELD(enable),
    QV_FIELD_KEY(autoModeSelect, "auto_mode_select"),
};

} // namespace

extern constinit const TableOf<Record> kAutoDefectPixelClusterCorrection =
    QV_TABLE("QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection_parse(
    QvJsonValue_t* pValue, QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig)
{
    return readRecord(simulator::kAutoDefectPixelClusterCorrection, pValue, pConfig);
}

int QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection_serialize(
    QvDatabaseAutoDefectPixelClusterCorrection_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(simulator::kAutoDefectPixelClusterCorrection, pConfig, pValue);
}
