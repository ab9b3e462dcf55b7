#include <qv_database_c/database_green_equilibration.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseGreenEquilibration_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(threshold),
};

} // namespace

constinit const TableOf<Record> kGreenEquilibration{"QvDatabaseGreenEquilibration", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseGreenEquilibration_parse(QvJsonValue_t* pValue, QvDatabaseGreenEquilibration_t* pConfig)
{
    return readRecord(tuning::kGreenEquilibration, pValue, pConfig);
}

int QvDatabaseGreenEquilibration_serialize(QvDatabaseGreenEquilibration_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kGreenEquilibration, pConfig, pValue);
}

int QvDatabaseGreenEquilibration_reset(QvDatabaseGreenEquilibration_t* pConfig)
{
    return clearRecord(pConfig);
}
