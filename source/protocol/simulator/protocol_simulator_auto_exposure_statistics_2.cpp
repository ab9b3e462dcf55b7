#include <qv_database_c/database_auto_exposure_statistics_2.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace window {
QV_RECORD(QvDatabaseRectangle_t);

constexpr Field kRows[] = {
    QV_FIELD(offset.x),
    QV_FIELD(offset.y),
    QV_FIELD(width),
    QV_FIELD(height),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_autoExposureStatistics_2", kRows);
} // namespace window

QV_RECORD(QvDatabaseAutoExposureStatistics_2_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(windowSetCustomEnable),
    QV_FIELD(inputSelect),
    QV_OBJECT_KEY(rectangle, "windows", window::kTable).asMembers(),
};

} // namespace

extern constinit const TableOf<Record> kAutoExposureStatistics_2 =
    QV_TABLE("QvDatabaseProtocolSimulator_autoExposureStatistics_2", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_autoExposureStatistics_2, simulator::kAutoExposureStatistics_2)
