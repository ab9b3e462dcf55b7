#include <qv_database_c/database_black_level_subtraction.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseBlackLevelSubtraction_t;

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

constinit const TableOf<Record> kBlackLevelSubtraction{"QvDatabaseBlackLevelSubtraction", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseBlackLevelSubtraction_parse(QvJsonValue_t* pValue, QvDatabaseBlackLevelSubtraction_t* pConfig)
{
    return readRecord(tuning::kBlackLevelSubtraction, pValue, pConfig);
}

int QvDatabaseBlackLevelSubtraction_serialize(QvDatabaseBlackLevelSubtraction_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kBlackLevelSubtraction, pConfig, pValue);
}

int QvDatabaseBlackLevelSubtraction_reset(QvDatabaseBlackLevelSubtraction_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}
