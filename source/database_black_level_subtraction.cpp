#include <qv_database_c/database_black_level_subtraction.h>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseBlackLevelSubtraction_t);

constexpr Field kRows[] = {
    QV_FIELD(overrideCaliEn),
    QV_FIELD(bls),
    QV_FIELD(bitWidth),
};

Record default_()
{
    Record record{};
    record.overrideCaliEn = true;
    record.bitWidth = 12;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kBlackLevelSubtraction = QV_TABLE("QvDatabaseBlackLevelSubtraction", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseBlackLevelSubtraction, tuning::kBlackLevelSubtraction)
QV_DEFAULT_RESET(QvDatabaseBlackLevelSubtraction, tuning::default_())
