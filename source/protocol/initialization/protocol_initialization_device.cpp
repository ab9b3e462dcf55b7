#include <qv_database_c/protocol_initialization.h>

#include "database_forms.h"
#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

using Record = QvDatabaseDevice_t;

constexpr Field kRows[] = {
    QV_FIELD(operation),
    QV_FIELD(portId),
    QV_FIELD(workMode),
};

} // namespace

constinit const TableOf<Record> kDevice{"QvDatabaseProtocolInitialization_device", __FILE__, kRows};

} // namespace qv::database::initialization

using namespace qv::database;

int QvDatabaseProtocolInitialization_device_parse(QvInitializationSection_t* pSection, QvDatabaseDevice_t* pConfig)
{
    return readSection(initialization::kDevice, pSection, pConfig);
}

int QvDatabaseProtocolInitialization_device_serialize(QvDatabaseDevice_t* pConfig, QvInitializationSection_t* pSection)
{
    return writeSection(initialization::kDevice, pConfig, pSection);
}
