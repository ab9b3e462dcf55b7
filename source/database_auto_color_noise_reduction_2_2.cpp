#include <qv_database_c/database_auto_color_noise_reduction_2_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoColorNoiseReduction_2_2_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(cnrStrength), QV_FIELD(cSigmaLayer0), QV_FIELD(cSigmaLayer1), QV_FIELD(cSigmaLayer2),
    QV_FIELD(gains),       QV_FIELD(hdr),          QV_FIELD(textureMask),
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoColorNoiseReduction_2_2", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoColorNoiseReduction_2_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoColorNoiseReduction_2_2{"QvDatabaseAutoColorNoiseReduction_2_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoColorNoiseReduction_2_2_parse(QvJsonValue_t* pValue, QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig)
{
    return readRecord(tuning::kAutoColorNoiseReduction_2_2, pValue, pConfig);
}

int QvDatabaseAutoColorNoiseReduction_2_2_serialize(QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig,
                                                    QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoColorNoiseReduction_2_2, pConfig, pValue);
}

int QvDatabaseAutoColorNoiseReduction_2_2_reset(QvDatabaseAutoColorNoiseReduction_2_2_t* pConfig)
{
    return clearRecord(pConfig);
}
