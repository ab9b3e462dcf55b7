#include <qv_database_c/protocol_initialization.h>

#include "database_forms.h"
#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

using Record = QvDatabaseInput_t;

// The rows of one path; its index is part of the keys.
#define QV_INPUT_PATH(i)                                                                                               \
    QV_FIELD(paths[i].bayerPattern), QV_FIELD(paths[i].enable), QV_FIELD(paths[i].format),                             \
        QV_FIELD(paths[i].formatExt), QV_FIELD(paths[i].rectangle.height), QV_FIELD(paths[i].rectangle.offset.x),      \
        QV_FIELD(paths[i].rectangle.offset.y), QV_FIELD(paths[i].rectangle.width), QV_FIELD(paths[i].stitchingMode)

constexpr Field kRows[] = {
    QV_FIELD(framerate), QV_FIELD(isInjectLive), QV_INPUT_PATH(0), QV_INPUT_PATH(1), QV_INPUT_PATH(2),
};

#undef QV_INPUT_PATH

} // namespace

constinit const TableOf<Record> kInput{"QvDatabaseProtocolInitialization_input", __FILE__, kRows};

} // namespace qv::database::initialization

using namespace qv::database;

int QvDatabaseProtocolInitialization_input_parse(QvInitializationSection_t* pSection, QvDatabaseInput_t* pConfig)
{
    return readSection(initialization::kInput, pSection, pConfig);
}

int QvDatabaseProtocolInitialization_input_serialize(QvDatabaseInput_t* pConfig, QvInitializationSection_t* pSection)
{
    return writeSection(initialization::kInput, pConfig, pSection);
}
