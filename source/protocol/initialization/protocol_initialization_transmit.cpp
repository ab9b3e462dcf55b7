#include <qv_database_c/protocol_initialization.h>

#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

QV_RECORD(QvDatabaseTransmit_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(fs.isBmp),
    QV_FIELD(fs.frameCount),
    QV_FIELD(fs.isInputBlock),
    QV_FIELD(fs.inputFolder),
    QV_FIELD(fs.inputFrameBegin),
    QV_FIELD(fs.inputFrameEnd),
    QV_FIELD(fs.inputStream),
    QV_FIELD(fs.jobsCount),
    QV_FIELD(fs.metaFolder),
    QV_FIELD(fs.outputFolder),
    QV_FIELD(fs.outputFilePrefix),
    QV_FIELD(fs.outputStream),
    QV_FIELD(http.portControl),
    QV_FIELD(rtmp.nginxIp),
    QV_FIELD(rtmp.portStream),
    QV_FIELD(isStreamable),
    QV_FIELD(tcp.portControl),
    QV_FIELD(tcp.portInject),
    QV_FIELD(tcp.portMeta),
    QV_FIELD(tcp.portRaw),
    QV_FIELD(tcp.portStatistics),
    QV_FIELD(tcp.portStream),
    QV_FIELD(uart.portControl),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kTransmit = QV_TABLE("QvDatabaseProtocolInitialization_transmit", kRows);

} // namespace qv::database::initialization

using namespace qv::database;

QV_SECTION_CODECS(QvDatabaseProtocolInitialization_transmit, initialization::kTransmit)
