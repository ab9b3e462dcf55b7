#include <qv_database_c/database_color_process_1_2.h>

#include "database_forms.h"
#include "database_walk.h"

namespace qv::database::tuning {
namespace {

using Record = QvDatabaseColorProcess_1_2_t;

constexpr Field kRows[] = {
    QV_FIELD(enable),           QV_FIELD(contrast),       QV_FIELD(bright),   QV_FIELD(saturation), QV_FIELD(hue),
    QV_FIELD(useOutConvMatrix), QV_FIELD(rgbToyuvMatrix), QV_FIELD(yuvRange), QV_FIELD(gamut),
};

} // namespace

constinit const TableOf<Record> kColorProcess_1_2{"QvDatabaseColorProcess_1_2", __FILE__, kRows};

} // namespace qv::database::tuning

using namespace qv::database;

int QvDatabaseColorProcess_1_2_parse(QvJsonValue_t* pValue, QvDatabaseColorProcess_1_2_t* pConfig)
{
    return readRecord(tuning::kColorProcess_1_2, pValue, pConfig);
}

int QvDatabaseColorProcess_1_2_serialize(QvDatabaseColorProcess_1_2_t* pConfig, QvJsonValue_t* pValue)
{
    return writeRecord(tuning::kColorProcess_1_2, pConfig, pValue);
}

int QvDatabaseColorProcess_1_2_reset(QvDatabaseColorProcess_1_2_t* pConfig)
{
    return clearRecord(pConfig);
}
