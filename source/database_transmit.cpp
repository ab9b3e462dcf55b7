#include <qv_database_c/database_transmit.h>

#include <cstring>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace fs {
using Record = QvDatabaseTransmitFs_t;

constexpr Field kRows[] = {
    QV_FIELD(isBmp),           QV_FIELD(frameCount),    QV_FIELD(isInputBlock),     QV_FIELD(inputFolder),
    QV_FIELD(inputFrameBegin), QV_FIELD(inputFrameEnd), QV_FIELD(inputStream),      QV_FIELD(jobsCount),
    QV_FIELD(metaFolder),      QV_FIELD(outputFolder),  QV_FIELD(outputFilePrefix), QV_FIELD(outputStream),
};

constexpr TableOf<Record> kTable{"QvDatabaseTransmit", __FILE__, kRows};
} // namespace fs

namespace http {
using Record = QvDatabaseTransmitHttp_t;

constexpr Field kRows[] = {
    QV_FIELD(portControl),
};

constexpr TableOf<Record> kTable{"QvDatabaseTransmit", __FILE__, kRows};
} // namespace http

namespace rtmp {
using Record = QvDatabaseTransmitRtmp_t;

constexpr Field kRows[] = {
    QV_FIELD(nginxIp),
    QV_FIELD(portStream),
};

constexpr TableOf<Record> kTable{"QvDatabaseTransmit", __FILE__, kRows};
} // namespace rtmp

namespace tcp {
using Record = QvDatabaseTransmitTcp_t;

constexpr Field kRows[] = {
    QV_FIELD(portControl), QV_FIELD(portInject),     QV_FIELD(portMeta),
    QV_FIELD(portRaw),     QV_FIELD(portStatistics), QV_FIELD(portStream),
};

constexpr TableOf<Record> kTable{"QvDatabaseTransmit", __FILE__, kRows};
} // namespace tcp

namespace uart {
using Record = QvDatabaseTransmitUart_t;

constexpr Field kRows[] = {
    QV_FIELD(portControl),
};

constexpr TableOf<Record> kTable{"QvDatabaseTransmit", __FILE__, kRows};
} // namespace uart

using Record = QvDatabaseTransmit_t;

constexpr Field kRows[] = {
    QV_OBJECT(fs, fs::kTable), QV_OBJECT(http, http::kTable), QV_OBJECT(rtmp, rtmp::kTable),
    QV_FIELD(isStreamable),    QV_OBJECT(tcp, tcp::kTable),   QV_OBJECT(uart, uart::kTable),
};

Record default_()
{
    Record record{};
    record.fs.jobsCount = 2;
    record.http.portControl = 8080;
    std::strcpy(record.rtmp.nginxIp, "127.0.0.1");
    record.rtmp.portStream = 1935;
    record.isStreamable = true;
    record.tcp.portControl = 2000;
    record.tcp.portInject = 2001;
    record.tcp.portMeta = 2005;
    record.tcp.portRaw = 2002;
    record.tcp.portStatistics = 2003;
    record.tcp.portStream = 45679;
    std::strcpy(record.uart.portControl, "/dev/ttyS0");
    return record;
}

} // namespace

constinit const TableOf<Record> kTransmit{"QvDatabaseTransmit", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

// Neither codec tests its arguments.

int QvDatabaseTransmit_parse(QvJsonValue_t* pValue, QvDatabaseTransmit_t* pConfig)
{
    return readTable(tuning::kTransmit, pValue, pConfig);
}

int QvDatabaseTransmit_serialize(QvDatabaseTransmit_t* pConfig, QvJsonValue_t* pValue)
{
    return writeTable(tuning::kTransmit, pConfig, pValue);
}

int QvDatabaseTransmit_reset(QvDatabaseTransmit_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}
