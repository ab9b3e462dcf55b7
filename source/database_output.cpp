#include <qv_database_c/database_output.h>

#include <cstdint>
#include <iterator>

#include "database_values.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace path {
QV_RECORD(QvDatabaseOutputPath_t);

constexpr Field kRows[] = {
    QV_FIELD(bayerPattern),
    QV_FIELD(bitsIndex),
    QV_FIELD(isCrop),
    QV_OBJECT(cropRectangle, kRectangle),
    QV_FIELD(enable),
    QV_FIELD(format),
    QV_OBJECT(rectangle, kRectangle),
};

constexpr auto kTable = QV_TABLE("path", kRows);
} // namespace path

QV_RECORD(QvDatabaseOutput_t);

constexpr Field kRows[] = {
    QV_OBJECT(paths, path::kTable),
    QV_FIELD(snapshotNumber),
};

Record default_()
{
    struct Path {
        bool enable;
        std::uint16_t format;
        std::uint16_t height;
        std::uint16_t width;
    };
    constexpr Path kPaths[QvDatabaseOutputType_Sum] = {
        {true, 3, 1080, 1920},  // main
        {true, 0, 0, 0},        // metadata
        {true, 17, 1080, 1920}, // raw
        {true, 17, 1080, 1920}, // raw HDR
        {false, 5, 1080, 1920}, // self
        {false, 5, 1080, 1920}, // second self
    };
    Record record{};
    for (std::size_t i = 0; i < std::size(kPaths); ++i) {
        record.paths[i].enable = kPaths[i].enable;
        record.paths[i].format = kPaths[i].format;
        record.paths[i].rectangle.height = kPaths[i].height;
        record.paths[i].rectangle.width = kPaths[i].width;
    }
    return record;
}

} // namespace

extern constinit const TableOf<Record> kOutput = QV_TABLE("QvDatabaseOutput", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseOutput, tuning::kOutput)
QV_DEFAULT_RESET(QvDatabaseOutput, tuning::default_())
