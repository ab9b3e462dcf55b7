#include <qv_database_c/database_3a_interface_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabase3AInterface_2_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(autoTable, "auto_table"),
    QV_FIELD_KEY(awbEnable, "awb_enable"),
    QV_FIELD_KEY(cacEnable, "cac_enable"),
    QV_FIELD_KEY(ccEnable, "cc_enable"),
    QV_FIELD_KEY(class_, "class"),
    QV_FIELD(enable),
    QV_FIELD_KEY(integrationTime, "integration_time"),
    QV_FIELD_KEY(lscEnable, "lsc_enable"),
    QV_FIELD_KEY(lscVersion, "lsc_version"),
    QV_FIELD_KEY(sensorGain, "sensor_gain"),
    QV_FIELD(xml),
    QV_FIELD_KEY(metadataEnable, "metadata_enable"),
    QV_FIELD_KEY(metadataExposureGain, "metadata_exposure_gain_array"),
    QV_FIELD_KEY(metadataExposureTime, "metadata_exposure_time_array"),
    QV_FIELD_KEY(metadataCCT, "metadata_CCT_array"),
    QV_FIELD_KEY(metadataAwbGains, "metadata_awb_gains_array"),
    QV_FIELD_KEY(maxExposureTime, "max_exposure_time"),
};

} // namespace

extern constinit const TableOf<Record> k3AInterface_2 = QV_TABLE("QvDatabaseProtocolSimulator_3AInterface_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_3AInterface_2, simulator::k3AInterface_2)
QV_CLEARED_RESET(QvDatabase3AInterface_2)
