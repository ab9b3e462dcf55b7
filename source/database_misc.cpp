#include <qv_database_c/database_misc.h>

#include <cstring>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

QV_RECORD(QvDatabaseMisc_t);

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

extern constinit const TableOf<Record> kMisc = QV_TABLE("QvDatabaseMisc", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

QV_CODECS(QvDatabaseMisc, tuning::kMisc)
QV_DEFAULT_RESET(QvDatabaseMisc, tuning::default_())
