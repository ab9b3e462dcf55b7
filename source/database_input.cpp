#include <qv_database_c/database_input.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace path {
using Record = QvDatabaseInputPath_t;

constexpr Field kRows[] = {
    QV_FIELD(bayerPattern),
    QV_FIELD(enable),
    QV_FIELD(format),
    QV_FIELD(formatExt).writtenUnsigned(), // -1 goes out as 65535 here, as -1 in an initialization file
    QV_OBJECT(rectangle, kRectangle),
    QV_FIELD(stitchingMode),
};

constexpr TableOf<Record> kTable{"path", __FILE__, kRows};
} // namespace path

using Record = QvDatabaseInput_t;

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

constinit const TableOf<Record> kInput{"QvDatabaseInput", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseInput_parse(QvJsonValue_t* pValue, QvDatabaseInput_t* pConfig)
{
    return readRecord(tuning::kInput, pValue, pConfig);
}

int QvDatabaseInput_serialize(QvDatabaseInput_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kInput, pConfig, pValue);
}

int QvDatabaseInput_reset(QvDatabaseInput_t* pConfig)
{
    const int status = resetRecord(pConfig, tuning::default_());
    if (status == kSuccess) {
        pConfig->type = QvDatabaseInputType_Sensor;
    }
    return status;
}
