#include <qv_database_c/database_tile.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseTile_t);

constexpr Field kRows[] = {
    QV_FIELD(joint),
    QV_FIELD(numberX),
    QV_FIELD(numberY),
    QV_FIELD(operation),
};

Record default_()
{
    Record record{};
    record.joint = 1;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kTile = QV_TABLE("QvDatabaseTile", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseTile, tuning::kTile)
QV_DEFAULT_RESET(QvDatabaseTile, tuning::default_())
