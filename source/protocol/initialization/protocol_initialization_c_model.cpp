#include <qv_database_c/protocol_initialization.h>

#include "protocol_initialization.h"

namespace qv::database::initialization {
namespace {

QV_RECORD(QvDatabaseCModel_t);

// clang-format off
constexpr Field kRows[] = {
    QV_FIELD(_2dnr.bit),
    QV_FIELD(_2dnr.enable),
    QV_FIELD(_3dnr.bit),
    QV_FIELD(_3dnr.enable),
    QV_FIELD(awb.bit),
    QV_FIELD(awb.enable),
    QV_FIELD(ccm.bit),
    QV_FIELD(ccm.enable),
    QV_FIELD(compand.bit),
    QV_FIELD(compand.enable),
    QV_FIELD(cProc.bit),
    QV_FIELD(cProc.enable),
    QV_FIELD(deMosaic.bit),
    QV_FIELD(deMosaic.enable),
    QV_FIELD(dpcc.bit),
    QV_FIELD(dpcc.enable),
    QV_FIELD(dpf.bit),
    QV_FIELD(dpf.enable),
    QV_FIELD(drc.bit),
    QV_FIELD(drc.enable),
    QV_FIELD(ee.bit),
    QV_FIELD(ee.enable),
    QV_FIELD(gtm.bit),
    QV_FIELD(gtm.enable),
    QV_FIELD(hdr.bit),
    QV_FIELD(hdr.enable),
    QV_FIELD(lsc.bit),
    QV_FIELD(lsc.enable),
    QV_FIELD(scale.bit),
    QV_FIELD(scale.enable),
};
// clang-format on

} // namespace

extern constinit const TableOf<Record> kCModel = QV_TABLE("QvDatabaseProtocolInitialization_cModel", kRows);

} // namespace qv::database::initialization

using namespace qv::database;

QV_SECTION_CODECS(QvDatabaseProtocolInitialization_cModel, initialization::kCModel)
