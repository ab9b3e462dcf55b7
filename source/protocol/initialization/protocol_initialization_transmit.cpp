#include <qv_database_c/protocol_initialization.h>

#include "database_forms.h"
#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

using Record = QvDatabaseTransmit_t;

constexpr Field kRows[] = {
    QV_FIELD(fs.isBmp),           QV_FIELD(fs.frameCount),    QV_FIELD(fs.isInputBlock),     QV_FIELD(fs.inputFolder),
    QV_FIELD(fs.inputFrameBegin), QV_FIELD(fs.inputFrameEnd), QV_FIELD(fs.inputStream),      QV_FIELD(fs.jobsCount),
    QV_FIELD(fs.metaFolder),      QV_FIELD(fs.outputFolder),  QV_FIELD(fs.outputFilePrefix), QV_FIELD(fs.outputStream),
    QV_FIELD(http.portControl),   QV_FIELD(rtmp.nginxIp),     QV_FIELD(rtmp.portStream),     QV_FIELD(isStreamable),
    QV_FIELD(tcp.portControl),    QV_FIELD(tcp.portInject),   QV_FIELD(tcp.portMeta),        QV_FIELD(tcp.portRaw),
    QV_FIELD(tcp.portStatistics), QV_FIELD(tcp.portStream),   QV_FIELD(uart.portControl),
};

} // namespace

constinit const TableOf<Record> kTransmit{"QvDatabaseProtocolInitialization_transmit", __FILE__, kRows};

} // namespace qv::database::initialization

using namespace qv::database;

int QvDatabaseProtocolInitialization_transmit_parse(QvInitializationSection_t* pSection, QvDatabaseTransmit_t* pConfig)
{
    return readSection(initialization::kTransmit, pSection, pConfig);
}

int QvDatabaseProtocolInitialization_transmit_serialize(QvDatabaseTransmit_t* pConfig,
                                                        QvInitializationSection_t* pSection)
{
    return writeSection(initialization::kTransmit, pConfig, pSection);
}
