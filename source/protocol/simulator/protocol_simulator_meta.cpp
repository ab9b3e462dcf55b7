#include <qv_database_c/database_meta.h>
#include <qv_database_c/protocol_simulator_codecs.h>
#include <qv_json_c/json_path.h>

#include "database_trace.h"
#include "database_walk.h"

namespace qv::database::simulator {
namespace {

QV_RECORD(QvDatabaseMeta_t);

constexpr Field kRows[] = {
    QV_FIELD_KEY(frameCount, "frame_index"),
    QV_FIELD_KEY(integrationTime, "image_int_time"),
    QV_FIELD_KEY(sensorDigitalGain, "image_gain"),
};

constexpr const char* kPath = "root/metadata";

} // namespace

extern constinit const TableOf<Record> kMeta = QV_TABLE("QvDatabaseProtocolSimulator_meta", kRows);

} // namespace qv::database::simulator

using namespace qv::database;

int QvDatabaseProtocolSimulator_meta_parse(QvJsonValue_t* pValue, QvDatabaseMeta_t* pConfig)
{
    if (pValue == nullptr || pConfig == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pMetadata = nullptr;
    QV_TRY(QvJsonPath(pValue, simulator::kPath, &pMetadata));
    // Not a failure but a message: the document is of the plain form.
    return QvJsonValue_isEmpty(pMetadata) ? static_cast<int>(kNoContent)
                                          : readTable(simulator::kMeta, pMetadata, pConfig);
}

int QvDatabaseProtocolSimulator_meta_serialize(QvDatabaseMeta_t* pConfig, QvJsonValue_t* pValue)
{
    if (pConfig == nullptr || pValue == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pMetadata = nullptr;
    const int status = QvJsonPath(pValue, simulator::kPath, &pMetadata);
    return status == kSuccess ? writeTable(simulator::kMeta, pConfig, pMetadata) : QV_FAIL(status);
}
