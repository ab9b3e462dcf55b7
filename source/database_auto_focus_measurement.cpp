#include <qv_database_c/database_auto_focus_measurement.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoFocusMeasurement_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(id),
    QV_FIELD(threshold),
    QV_FIELD(window),
};

} // namespace

extern constinit const TableOf<Record> kAutoFocusMeasurement = QV_TABLE("QvDatabaseAutoFocusMeasurement", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoFocusMeasurement, tuning::kAutoFocusMeasurement)
QV_CLEARED_RESET(QvDatabaseAutoFocusMeasurement)
