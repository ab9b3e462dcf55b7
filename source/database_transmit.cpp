#include <qv_database_c/database_transmit.h>

#include <cstring>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace fs {
QV_RECORD(QvDatabaseTransmitFs_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(isBmp),
    QV_FIELD(frameCount),
    QV_FIELD(isInputBlock),
    QV_FIELD(inputFolder),
    QV_FIELD(inputFrameBegin),
    QV_FIELD(inputFrameEnd),
    QV_FIELD(inputStream),
    QV_FIELD(jobsCount),
    QV_FIELD(metaFolder),
    QV_FIELD(outputFolder),
    QV_FIELD(outputFilePrefix),
    QV_FIELD(outputStream),
};
// clang-format on

constexpr auto kTable = QV_TABLE("QvDatabaseTransmit", kRows);
} // namespace fs

namespace http {
QV_RECORD(QvDatabaseTransmitHttp_t);

constexpr Field kRows[] = {
    QV_FIELD(portControl),
};

constexpr auto kTable = QV_TABLE("QvDatabaseTransmit", kRows);
} // namespace http

namespace rtmp {
QV_RECORD(QvDatabaseTransmitRtmp_t);

constexpr Field kRows[] = {
    QV_FIELD(nginxIp),
    QV_FIELD(portStream),
};

constexpr auto kTable = QV_TABLE("QvDatabaseTransmit", kRows);
} // namespace rtmp

namespace tcp {
QV_RECORD(QvDatabaseTransmitTcp_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(portControl),
    QV_FIELD(portInject),
    QV_FIELD(portMeta),
    QV_FIELD(portRaw),
    QV_FIELD(portStatistics),
    QV_FIELD(portStream),
};
// clang-format on

constexpr auto kTable = QV_TABLE("QvDatabaseTransmit", kRows);
} // namespace tcp

namespace uart {
QV_RECORD(QvDatabaseTransmitUart_t);

constexpr Field kRows[] = {
    QV_FIELD(portControl),
};

constexpr auto kTable = QV_TABLE("QvDatabaseTransmit", kRows);
} // namespace uart

QV_RECORD(QvDatabaseTransmit_t);

// clang-format off
constexpr Field kRows[] = {
    QV_OBJECT(fs, fs::kTable),
    QV_OBJECT(http, http::kTable),
    QV_OBJECT(rtmp, rtmp::kTable),
    QV_FIELD(isStreamable),
    QV_OBJECT(tcp, tcp::kTable),
    QV_OBJECT(uart, uart::kTable),
};
// clang-format on

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

extern constinit const TableOf<Record> kTransmit = QV_TABLE("QvDatabaseTransmit", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

// Neither codec tests its arguments.

QV_UNTESTED_CODECS(QvDatabaseTransmit, tuning::kTransmit)
QV_DEFAULT_RESET(QvDatabaseTransmit, tuning::default_())
