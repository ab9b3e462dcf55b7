#include <qv_database_c/protocol_initialization.h>

#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

QV_RECORD(QvDatabaseDevice_t);

constexpr Field kRows[] = {
    QV_FIELD(operation),
    QV_FIELD(portId),
    QV_FIELD(workMode),
};

} // namespace

extern constinit const TableOf<Record> kDevice = QV_TABLE("QvDatabaseProtocolInitialization_device", kRows);

} // namespace qv::database::initialization

using namespace qv::database;

QV_SECTION_CODECS(QvDatabaseProtocolInitialization_device, initialization::kDevice)
