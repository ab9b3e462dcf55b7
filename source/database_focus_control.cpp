#include <qv_database_c/database_focus_control.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseFocusControl_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(mode),
    QV_FIELD(position),
};

} // namespace

extern constinit const TableOf<Record> kFocusControl = QV_TABLE("QvDatabaseFocusControl", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseFocusControl, tuning::kFocusControl)
QV_CLEARED_RESET(QvDatabaseFocusControl)
