#include <qv_database_c/database_color_process_1_2.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseColorProcess_1_2_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(contrast),
    QV_FIELD(bright),
    QV_FIELD(saturation),
    QV_FIELD(hue),
    QV_FIELD(useOutConvMatrix),
    QV_FIELD(rgbToyuvMatrix),
    QV_FIELD(yuvRange),
    QV_FIELD(gamut),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kColorProcess_1_2 = QV_TABLE("QvDatabaseColorProcess_1_2", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseColorProcess_1_2, tuning::kColorProcess_1_2)
QV_CLEARED_RESET(QvDatabaseColorProcess_1_2)
