#include <qv_database_c/database_input.h>

#include "database_values.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace path {
QV_RECORD(QvDatabaseInputPath_t);

constexpr Field kRows[] = {
    QV_FIELD(bayerPattern),
    QV_FIELD(enable),
    QV_FIELD(format),
    QV_FIELD(formatExt).writtenUnsigned(), // -1 goes out as 65535 here, as -1 in an initialization file
    QV_OBJECT(rectangle, kRectangle),
    QV_FIELD(stitchingMode),
};

constexpr auto kTable = QV_TABLE("path", kRows);
} // namespace path

QV_RECORD(QvDatabaseInput_t);

constexpr Field kRows[] = {
    QV_FIELD(framerate),
    QV_FIELD(isInjectLive),
    QV_OBJECT(paths, path::kTable),
    QV_FIELD(type),
};

/// All but the type, which the reset sets.
Record default_()
{
    Record record{};
    record.framerate = 2.0F;
    record.isInjectLive = true;
    for (QvDatabaseInputPath_t& path : record.paths) {
        path.enable = true;
        path.formatExt = -1;
        path.rectangle.height = 1080;
        path.rectangle.width = 1920;
    }
    record.paths[QvDatabaseInputType_Sensor].enable = false;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kInput = QV_TABLE("QvDatabaseInput", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseInput, tuning::kInput)

int QvDatabaseInput_reset(QvDatabaseInput_t* pConfig)
{
    const int status = resetRecord(pConfig, tuning::default_());
    if (status == kSuccess) {
        pConfig->type = QvDatabaseInputType_Sensor;
    }
    return status;
}
