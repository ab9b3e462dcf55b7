#include <qv_database_c/database_exposure_control_2.h>

#include <algorithm>
#include <iterator>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace gain {
QV_RECORD(QvDatabaseExposureControl_2_Gain_t);

constexpr Field kRows[] = {
    QV_FIELD(analog),
    QV_FIELD(digital),
};

constexpr auto kTable = QV_TABLE("gain", kRows);
} // namespace gain

QV_RECORD(QvDatabaseExposureControl_2_t);

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

extern constinit const TableOf<Record> kExposureControl_2 = QV_TABLE("QvDatabaseExposureControl_2", kRows);

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

QV_DEFAULT_RESET(QvDatabaseExposureControl_2, tuning::default_())
