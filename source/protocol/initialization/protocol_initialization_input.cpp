#include <qv_database_c/protocol_initialization.h>

#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

QV_RECORD(QvDatabaseInput_t);

constexpr Field kRows[] = {
    QV_FIELD(framerate),
    QV_FIELD(isInjectLive),
    QV_FIELD(paths[0].bayerPattern),
    QV_FIELD(paths[0].enable),
    QV_FIELD(paths[0].format),
    QV_FIELD(paths[0].formatExt),
    QV_FIELD(paths[0].rectangle.height),
    QV_FIELD(paths[0].rectangle.offset.x),
    QV_FIELD(paths[0].rectangle.offset.y),
    QV_FIELD(paths[0].rectangle.width),
    QV_FIELD(paths[0].stitchingMode),
    QV_FIELD(paths[1].bayerPattern),
    QV_FIELD(paths[1].enable),
    QV_FIELD(paths[1].format),
    QV_FIELD(paths[1].formatExt),
    QV_FIELD(paths[1].rectangle.height),
    QV_FIELD(paths[1].rectangle.offset.x),
    QV_FIELD(paths[1].rectangle.offset.y),
    QV_FIELD(paths[1].rectangle.width),
    QV_FIELD(paths[1].stitchingMode),
    QV_FIELD(paths[2].bayerPattern),
    QV_FIELD(paths[2].enable),
    QV_FIELD(paths[2].format),
    QV_FIELD(paths[2].formatExt),
    QV_FIELD(paths[2].rectangle.height),
    QV_FIELD(paths[2].rectangle.offset.x),
    QV_FIELD(paths[2].rectangle.offset.y),
    QV_FIELD(paths[2].rectangle.width),
    QV_FIELD(paths[2].stitchingMode),
};

} // namespace

extern constinit const TableOf<Record> kInput = QV_TABLE("QvDatabaseProtocolInitialization_input", kRows);

} // namespace qv::database::initialization

using namespace qv::database;

QV_SECTION_CODECS(QvDatabaseProtocolInitialization_input, initialization::kInput)
