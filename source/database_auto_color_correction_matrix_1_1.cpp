#include <qv_database_c/database_auto_color_correction_matrix_1_1.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace schedule {
using Record = QvDatabaseAutoColorCorrectionMatrix_1_1_Table_t;

constexpr Field kRows[] = {
    QV_FIELD(gains),
    QV_FIELD(strength),
    QV_FIELD(hdr),
};

constexpr TableOf<Record> kTable{"QvDatabaseAutoColorCorrectionMatrix_1_1", __FILE__, kRows};
} // namespace schedule

using Record = QvDatabaseAutoColorCorrectionMatrix_1_1_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),
    QV_FIELD(damping),
    QV_OBJECT(tables, schedule::kTable).scheduledBy(QV_COUNTER(tableNumber)),
};

} // namespace

constinit const TableOf<Record> kAutoColorCorrectionMatrix_1_1{"QvDatabaseAutoColorCorrectionMatrix_1_1", __FILE__,
                                                               kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseAutoColorCorrectionMatrix_1_1_parse(QvJsonValue_t* pValue,
                                                  QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig)
{
    return readRecord(tuning::kAutoColorCorrectionMatrix_1_1, pValue, pConfig);
}

int QvDatabaseAutoColorCorrectionMatrix_1_1_serialize(QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig,
                                                      QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kAutoColorCorrectionMatrix_1_1, pConfig, pValue);
}

int QvDatabaseAutoColorCorrectionMatrix_1_1_reset(QvDatabaseAutoColorCorrectionMatrix_1_1_t* pConfig)
{
    return clearRecord(pConfig);
}
