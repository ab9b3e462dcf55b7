#include <qv_database_c/protocol_initialization.h>

#include "database_forms.h"
#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

using Record = QvDatabaseOutput_t;

// The rows of one path; its index is part of the keys.
#define QV_OUTPUT_PATH(i)                                                                                              \
    QV_FIELD(paths[i].bayerPattern), QV_FIELD(paths[i].bitsIndex), QV_FIELD(paths[i].isCrop),                          \
        QV_FIELD(paths[i].cropRectangle.height), QV_FIELD(paths[i].cropRectangle.offset.x),                            \
        QV_FIELD(paths[i].cropRectangle.offset.y), QV_FIELD(paths[i].cropRectangle.width), QV_FIELD(paths[i].enable),  \
        QV_FIELD(paths[i].format), QV_FIELD(paths[i].rectangle.height), QV_FIELD(paths[i].rectangle.offset.x),         \
        QV_FIELD(paths[i].rectangle.offset.y), QV_FIELD(paths[i].rectangle.width)

constexpr Field kRows[] = {
    QV_OUTPUT_PATH(0), QV_OUTPUT_PATH(1), QV_OUTPUT_PATH(2), QV_OUTPUT_PATH(3), QV_OUTPUT_PATH(4), QV_OUTPUT_PATH(5),
};

#undef QV_OUTPUT_PATH

} // namespace

constinit const TableOf<Record> kOutput{"QvDatabaseProtocolInitialization_output", __FILE__, kRows};

} // namespace qv::database::initialization

using namespace qv::database;

int QvDatabaseProtocolInitialization_output_parse(QvInitializationSection_t* pSection, QvDatabaseOutput_t* pConfig)
{
    return readSection(initialization::kOutput, pSection, pConfig);
}

int QvDatabaseProtocolInitialization_output_serialize(QvDatabaseOutput_t* pConfig, QvInitializationSection_t* pSection)
{
    return writeSection(initialization::kOutput, pConfig, pSection);
}
