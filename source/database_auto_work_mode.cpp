#include <qv_database_c/database_auto_work_mode.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseAutoWorkMode_t);

constexpr Field kRows[] = {
    QV_FIELD(autoWorkMode),
};

} // namespace

extern constinit const TableOf<Record> kAutoWorkMode = QV_TABLE("QvDatabaseAutoWorkMode", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseAutoWorkMode, tuning::kAutoWorkMode)
QV_CLEARED_RESET(QvDatabaseAutoWorkMode)
