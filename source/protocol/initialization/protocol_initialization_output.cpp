#include <qv_database_c/protocol_initialization.h>

#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

QV_RECORD(QvDatabaseOutput_t);

constexpr Field kRows[] = {
    QV_FIELD(paths[0].bayerPattern),
    QV_FIELD(paths[0].bitsIndex),
    QV_FIELD(paths[0].isCrop),
    QV_FIELD(paths[0].cropRectangle.height),
    QV_FIELD(paths[0].cropRectangle.offset.x),
    QV_FIELD(paths[0].cropRectangle.offset.y),
    QV_FIELD(paths[0].cropRectangle.width),
    QV_FIELD(paths[0].enable),
    QV_FIELD(paths[0].format),
    QV_FIELD(paths[0].rectangle.height),
    QV_FIELD(paths[0].rectangle.offset.x),
    QV_FIELD(paths[0].rectangle.offset.y),
    QV_FIELD(paths[0].rectangle.width),
    QV_FIELD(paths[1].bayerPattern),
    QV_FIELD(paths[1].bitsIndex),
    QV_FIELD(paths[1].isCrop),
    QV_FIELD(paths[1].cropRectangle.height),
    QV_FIELD(paths[1].cropRectangle.offset.x),
    QV_FIELD(paths[1].cropRectangle.offset.y),
    QV_FIELD(paths[1].cropRectangle.width),
    QV_FIELD(paths[1].enable),
    QV_FIELD(paths[1].format),
    QV_FIELD(paths[1].rectangle.height),
    QV_FIELD(paths[1].rectangle.offset.x),
    QV_FIELD(paths[1].rectangle.offset.y),
    QV_FIELD(paths[1].rectangle.width),
    QV_FIELD(paths[2].bayerPattern),
    QV_FIELD(paths[2].bitsIndex),
    QV_FIELD(paths[2].isCrop),
    QV_FIELD(paths[2].cropRectangle.height),
    QV_FIELD(paths[2].cropRectangle.offset.x),
    QV_FIELD(paths[2].cropRectangle.offset.y),
    QV_FIELD(paths[2].cropRectangle.width),
    QV_FIELD(paths[2].enable),
    QV_FIELD(paths[2].format),
    QV_FIELD(paths[2].rectangle.height),
    QV_FIELD(paths[2].rectangle.offset.x),
    QV_FIELD(paths[2].rectangle.offset.y),
    QV_FIELD(paths[2].rectangle.width),
    QV_FIELD(paths[3].bayerPattern),
    QV_FIELD(paths[3].bitsIndex),
    QV_FIELD(paths[3].isCrop),
    QV_FIELD(paths[3].cropRectangle.height),
    QV_FIELD(paths[3].cropRectangle.offset.x),
    QV_FIELD(paths[3].cropRectangle.offset.y),
    QV_FIELD(paths[3].cropRectangle.width),
    QV_FIELD(paths[3].enable),
    QV_FIELD(paths[3].format),
    QV_FIELD(paths[3].rectangle.height),
    QV_FIELD(paths[3].rectangle.offset.x),
    QV_FIELD(paths[3].rectangle.offset.y),
    QV_FIELD(paths[3].rectangle.width),
    QV_FIELD(paths[4].bayerPattern),
    QV_FIELD(paths[4].bitsIndex),
    QV_FIELD(paths[4].isCrop),
    QV_FIELD(paths[4].cropRectangle.height),
    QV_FIELD(paths[4].cropRectangle.offset.x),
    QV_FIELD(paths[4].cropRectangle.offset.y),
    QV_FIELD(paths[4].cropRectangle.width),
    QV_FIELD(paths[4].enable),
    QV_FIELD(paths[4].format),
    QV_FIELD(paths[4].rectangle.height),
    QV_FIELD(paths[4].rectangle.offset.x),
    QV_FIELD(paths[4].rectangle.offset.y),
    QV_FIELD(paths[4].rectangle.width),
    QV_FIELD(paths[5].bayerPattern),
    QV_FIELD(paths[5].bitsIndex),
    QV_FIELD(paths[5].isCrop),
    QV_FIELD(paths[5].cropRectangle.height),
    QV_FIELD(paths[5].cropRectangle.offset.x),
    QV_FIELD(paths[5].cropRectangle.offset.y),
    QV_FIELD(paths[5].cropRectangle.width),
    QV_FIELD(paths[5].enable),
    QV_FIELD(paths[5].format),
    QV_FIELD(paths[5].rectangle.height),
    QV_FIELD(paths[5].rectangle.offset.x),
    QV_FIELD(paths[5].rectangle.offset.y),
    QV_FIELD(paths[5].rectangle.width),
};

} // namespace

extern constinit const TableOf<Record> kOutput = QV_TABLE("QvDatabaseProtocolInitialization_output", kRows);

} // namespace qv::database::initialization

using namespace qv::database;

QV_SECTION_CODECS(QvDatabaseProtocolInitialization_output, initialization::kOutput)
