#include <qv_database_c/database_meta_driver.h>
#include <qv_database_c/protocol_simulator_codecs.h>

#include "database_walk.h"

namespace qv::database::simulator {
namespace {

namespace input {
QV_RECORD(QvDatabaseMetaDriver_Input_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(bayerPattern, "bayer_pattern"),
    QV_FIELD(bit),
    QV_FIELD(crop),
    QV_FIELD(frames),
    QV_FIELD(height),
    QV_FIELD(path),
    QV_FIELD_KEY(metadataInfo, "metadata_info"),
    QV_FIELD_KEY(startFrame, "start_frame"),
    QV_FIELD(width),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_metaDriver", kRows);
} // namespace input

namespace output {
QV_RECORD(QvDatabaseMetaDriver_Output_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(dumpYuvVideo, "dump_yuv_video"),
    QV_FIELD(height),
    QV_FIELD_KEY(jpgFile, "jpg_file"),
    QV_FIELD(path),
    QV_FIELD_KEY(videoFile, "video_file"),
    QV_FIELD(width),
    QV_FIELD_KEY(yuvFile, "yuv_file"),
    QV_FIELD(format),
    QV_FIELD(dataBits),
    QV_FIELD(yuvOrder),
    QV_FIELD(alpha),
    QV_FIELD(dumpStatistic),
};

constexpr auto kTable = QV_TABLE("QvDatabaseProtocolSimulator_metaDriver", kRows);
} // namespace output

QV_RECORD(QvDatabaseMetaDriver_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(id),
    QV_OBJECT(input, input::kTable),
    QV_FIELD_KEY(nrReloc, "nr_reloc"), // the key that MISC reads and writes as well
    QV_OBJECT(output, output::kTable),
};

} // namespace

extern constinit const TableOf<Record> kMetaDriver = QV_TABLE("QvDatabaseProtocolSimulator_metaDriver", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

QV_CODECS(QvDatabaseProtocolSimulator_metaDriver, simulator::kMetaDriver)
QV_CLEARED_RESET(QvDatabaseMetaDriver)
