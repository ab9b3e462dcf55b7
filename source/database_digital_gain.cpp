#include <qv_database_c/database_digital_gain.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseDigitalGain_t;

constexpr Field kRows[] = {
    QV_FIELD(enable), QV_FIELD(digitalGainB), QV_FIELD(digitalGainGb), QV_FIELD(digitalGainGr), QV_FIELD(digitalGainR),
};

} // namespace

constinit const TableOf<Record> kDigitalGain{"QvDatabaseDigitalGain", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseDigitalGain_parse(QvJsonValue_t* pValue, QvDatabaseDigitalGain_t* pConfig)
{
    return readRecord(tuning::kDigitalGain, pValue, pConfig);
}

int QvDatabaseDigitalGain_serialize(QvDatabaseDigitalGain_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kDigitalGain, pConfig, pValue);
}

int QvDatabaseDigitalGain_reset(QvDatabaseDigitalGain_t* pConfig)
{
    return clearRecord(pConfig);
}
