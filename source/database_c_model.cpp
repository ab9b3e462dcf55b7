#include <qv_database_c/database_c_model.h>

#include <cstring>

#include "database_walk.h"

namespace qv::database::tuning {
namespace {

namespace unit {
QV_RECORD(QvDatabaseCModel_Unit_t);

constexpr Field kRows[] = {
    QV_FIELD(bit),
    QV_FIELD(enable),
};

constexpr auto kTable = QV_TABLE("unit", kRows);
} // namespace unit

QV_RECORD(QvDatabaseCModel_t);

// clang-format off
constexpr Field kRows[] = {
    QV_OBJECT(_2dnr, unit::kTable),
    QV_OBJECT(_3dnr, unit::kTable),
    QV_OBJECT(awb, unit::kTable),
    QV_OBJECT(ccm, unit::kTable),
    QV_OBJECT(compand, unit::kTable),
    QV_OBJECT(cProc, unit::kTable),
    QV_OBJECT(deMosaic, unit::kTable),
    QV_OBJECT(dpcc, unit::kTable),
    QV_OBJECT(dpf, unit::kTable),
    QV_OBJECT(drc, unit::kTable),
    QV_OBJECT(ee, unit::kTable),
    QV_OBJECT(gtm, unit::kTable),
    QV_OBJECT(hdr, unit::kTable),
    QV_OBJECT(lsc, unit::kTable),
    QV_OBJECT(scale, unit::kTable),
};
// clang-format on

Record default_()
{
    Record record{};
    record._2dnr.bit = 16;
    record._3dnr.bit = 12;
    record.awb.bit = 12;
    record.ccm.bit = 12;
    record.compand.bit = 24;
    record.cProc.bit = 10;
    record.deMosaic.bit = 12;
    record.dpcc.bit = 16;
    record.dpf.bit = 16;
    record.drc.bit = 12;
    record.ee.bit = 12;
    record.gtm.bit = 24;
    record.hdr.bit = 24;
    record.lsc.bit = 12;
    record.scale.bit = 8;
    return record;
}

} // namespace

extern constinit const TableOf<Record> kCModel = QV_TABLE("QvDatabaseCModel", kRows);

} // namespace qv::database::tuning

using namespace qv::database;

// None of the three tests its arguments.

QV_UNTESTED_CODECS(QvDatabaseCModel, tuning::kCModel)

int QvDatabaseCModel_reset(QvDatabaseCModel_t* pConfig)
{
    const QvDatabaseCModel_t defaults = tuning::default_();
    std::memcpy(pConfig, &defaults, sizeof defaults);
    return kSuccess;
}
