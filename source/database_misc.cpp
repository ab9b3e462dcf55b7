#include <qv_database_c/database_misc.h>

#include <cstring>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseMisc_t;

constexpr Field kRows[] = {
    QV_FIELD(ispVersion),
    QV_FIELD(nrReloc),
    QV_FIELD(dpccRawEnable),
};

Record default_()
{
    Record record{};
    std::strcpy(record.ispVersion, "QVP1200L_V2407");
    std::strcpy(record.versionNumber, "6.8.25.2");
    return record;
}

} // namespace

constinit const TableOf<Record> kMisc{"QvDatabaseMisc", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseMisc_parse(QvJsonValue_t* pValue, QvDatabaseMisc_t* pConfig)
{
    return readRecord(tuning::kMisc, pValue, pConfig);
}

int QvDatabaseMisc_serialize(QvDatabaseMisc_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kMisc, pConfig, pValue);
}

int QvDatabaseMisc_reset(QvDatabaseMisc_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}
