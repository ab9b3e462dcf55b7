#include <qv_database_c/database_green_equilibration.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseGreenEquilibration_t);

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(threshold),
};

} // namespace

extern constinit const TableOf<Record> kGreenEquilibration = QV_TABLE("QvDatabaseGreenEquilibration", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseGreenEquilibration, tuning::kGreenEquilibration)
QV_CLEARED_RESET(QvDatabaseGreenEquilibration)
