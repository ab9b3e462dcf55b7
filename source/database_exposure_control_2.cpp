#include <qv_database_c/database_exposure_control_2.h>

#include <algorithm>
#include <iterator>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace gain {
using Record = QvDatabaseExposureControl_2_Gain_t;

constexpr Field kRows[] = {
    QV_FIELD(analog),
    QV_FIELD(digital),
};

constexpr TableOf<Record> kTable{"gain", __FILE__, kRows};
} // namespace gain

using Record = QvDatabaseExposureControl_2_t;

constexpr Field kRows[] = {
    QV_OBJECT(gain, gain::kTable),
    QV_FIELD(integrationTime),
};

Record default_()
{
    Record record{};
    std::fill(std::begin(record.gain.analog), std::end(record.gain.analog), 1.0F);
    std::fill(std::begin(record.gain.digital), std::end(record.gain.digital), 1.0F);
    std::fill(std::begin(record.integrationTime), std::end(record.integrationTime), 100000.0F);
    return record;
}

} // namespace

constinit const TableOf<Record> kExposureControl_2{"QvDatabaseExposureControl_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseExposureControl_2_parse(QvJsonValue_t* pValue, QvDatabaseExposureControl_2_t* pConfig)
{
    if (pValue == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    pConfig->isParse = true; // also where no member can be read
    return readTable(tuning::kExposureControl_2, pValue, pConfig);
}

int QvDatabaseExposureControl_2_serialize(QvDatabaseExposureControl_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kExposureControl_2, pConfig, pValue);
}

int QvDatabaseExposureControl_2_reset(QvDatabaseExposureControl_2_t* pConfig)
{
    return resetRecord(pConfig, tuning::default_());
}
