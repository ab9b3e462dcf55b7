#include <qv_database_c/protocol_simulator.h>

#include <span>
#include <string_view>

#include <qv_json_c/json_path.h>

#include "database_codec.h"
#include "database_registry.h"
#include "database_status.h"
#include "database_trace.h"

using namespace qv::database;

namespace {

struct Class {
    const char* name;
    Codec codec;
};

/// The classes of one array, and the member that names an element's class.
struct ClassTable {
    const char* member;
    std::span<const Class> rows;
};

constexpr Class kAutoRows[] = {
    {"A2dnrv5_1", QV_CODEC("A2DNR_5_2", QvDatabaseProtocolSimulator_auto2DNoiseReduction_5_2)},
    {"A3dnrv1", QV_CODEC("A3DNR_2_1", QvDatabaseProtocolSimulator_auto3DNoiseReduction_2_1)},
    {"AdaptiveAe", QV_CODEC("AE_3", QvDatabaseProtocolSimulator_autoExposure_3)},
    {"ABls", QV_CODEC("ABLS", QvDatabaseProtocolSimulator_autoBlackLevelSubtraction)},
    {"Accm", QV_CODEC("ACCM_1_1", QvDatabaseProtocolSimulator_AutoColorCorrectionMatrix_1_1)},
    {"ACnrv2", QV_CODEC("ACNR_2_2", QvDatabaseProtocolSimulator_autoColorNoiseReduction_2_2)},
    {"ACproc", QV_CODEC("ACP_1_2", QvDatabaseProtocolSimulator_autoColorProcess_1_2)},
    {"ADpcc", QV_CODEC("ADPCC", QvDatabaseProtocolSimulator_autoDefectPixelClusterCorrection)},
    {"ADmscv2", QV_CODEC("ADMSC_2", QvDatabaseProtocolSimulator_autoDeMosaic_2)},
    {"Aeev1", QV_CODEC("AEE_2", QvDatabaseProtocolSimulator_autoEdgeEnhance_2)},
    {"Af", QV_CODEC("AF_3", QvDatabaseProtocolSimulator_autoFocus_3)},
    {"AGamma64", QV_CODEC("AGC_2", QvDatabaseProtocolSimulator_autoGammaCorrection_2)},
    {"AGreenEqu", QV_CODEC("AGE", QvDatabaseProtocolSimulator_autoGreenEquilibration)},
    {"ALscv2", QV_CODEC("ALSC_4", QvDatabaseProtocolSimulator_autoLensShadingCorrection_4)},
    {"Awbv2", QV_CODEC("AWB_3", QvDatabaseProtocolSimulator_autoWhiteBalance_3)},
    {"AWdrv511", QV_CODEC("AWDR_5_2_1", QvDatabaseProtocolSimulator_autoWideDynamicRange_5_2_1)},
    {"AutoWorkMode", QV_CODEC("AWM", QvDatabaseProtocolSimulator_autoWorkMode)},
    {"IspController", QV_CODEC("ISP", QvDatabaseProtocolSimulator_isp)},
    {"SensorController", QV_CODEC("SS", QvDatabaseProtocolSimulator_sensor)},
};

constexpr Class kManualRows[] = {
    {"C2dnrv5_1", QV_CODEC("2DNR_5_2", QvDatabaseProtocolSimulator_2DNoiseReduction_5_2)},
    {"C3Av2Interface", QV_CODEC("3AI_2", QvDatabaseProtocolSimulator_3AInterface_2)},
    {"C3dnrv1", QV_CODEC("3DNR_2_1", QvDatabaseProtocolSimulator_3DNoiseReduction_2_1)},
    {"ExpV2", QV_CODEC("AES_2", QvDatabaseProtocolSimulator_autoExposureStatistics_2)},
    {"Afmv1", QV_CODEC("AFM", QvDatabaseProtocolSimulator_autoFocusMeasurement)},
    {"Bls", QV_CODEC("BLS", QvDatabaseProtocolSimulator_blackLevelSubtraction)},
    {"CCcm", QV_CODEC("CCM_1_1", QvDatabaseProtocolSimulator_colorCorrectionMatrix_1_1)},
    {"CCnrv2_opt", QV_CODEC("CNR_2_2", QvDatabaseProtocolSimulator_colorNoiseReduction_2_2)},
    {"CCproc", QV_CODEC("CP_1_2", QvDatabaseProtocolSimulator_colorProcess_1_2)},
    {"CCpdv1", QV_CODEC("CPD_1_1", QvDatabaseProtocolSimulator_compand_1_1)},
    {"CDpcc", QV_CODEC("DPCC", QvDatabaseProtocolSimulator_defectPixelClusterCorrection)},
    {"CDmscv2", QV_CODEC("DMSC_2", QvDatabaseProtocolSimulator_deMosaic_2)},
    {"CDgain", QV_CODEC("DG", QvDatabaseProtocolSimulator_digitalGain)},
    {"CEEv1", QV_CODEC("EE_2", QvDatabaseProtocolSimulator_edgeEnhance_2)},
    {"CGamma64", QV_CODEC("GC_2", QvDatabaseProtocolSimulator_gammaCorrection_2)},
    {"CGreenEqu", QV_CODEC("GE", QvDatabaseProtocolSimulator_greenEquilibration)},
    {"CHdrv2", QV_CODEC("HDR_2_1", QvDatabaseProtocolSimulator_highDynamicRange_2_1)},
    {"Hist64", QV_CODEC("HTG", QvDatabaseProtocolSimulator_histogram)},
    {"Hist256", QV_CODEC("HTG_2", QvDatabaseProtocolSimulator_histogram_2)},
    {"CLscv2", QV_CODEC("LSC_4", QvDatabaseProtocolSimulator_lensShadingCorrection_4)},
    {"CRgbIR", QV_CODEC("RGBIR_1_1", QvDatabaseProtocolSimulator_rgbInfraredRadiation_1_1)},
    {"CManualWb", QV_CODEC("WB_1_1", QvDatabaseProtocolSimulator_whiteBalance_1_1)},
    {"CWdrv5_1", QV_CODEC("WDR_5_2_1", QvDatabaseProtocolSimulator_wideDynamicRange_5_2_1)},
};

constexpr ClassTable kAuto = {"classname", kAutoRows};
constexpr ClassTable kManual = {"class", kManualRows};

/// Queries a category and reads it from an object. Each failure is traced.
int readCategory(QvDatabaseHandle_t handle, const Codec& codec, QvJsonValue_t* pValue)
{
    void* pRecord = nullptr;
    int status = QvDatabase_query(handle, codec.key, &pRecord);
    if (status == kSuccess) {
        status = codec.parse(pValue, pRecord);
    }
    return status == kSuccess ? status : QV_FAIL(status);
}

/// Reads one class object. A class that the table doesn't know, or that is no text, is passed over without a word.
int readClass(QvDatabaseHandle_t handle, const ClassTable& table, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    const char* pName = QvJsonValue_asString(QvJsonValue_member(pValue, table.member));
    if (pName == nullptr) {
        return kSuccess;
    }
    for (const Class& row : table.rows) {
        if (std::string_view{row.name} == pName) {
            return readCategory(handle, row.codec, pValue);
        }
    }
    return kSuccess;
}

int auto_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    return readClass(handle, kAuto, pValue);
}

int manual_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    return readClass(handle, kManual, pValue);
}

constexpr Codec kMisc = QV_CODEC("MISC", QvDatabaseProtocolSimulator_misc);
constexpr Codec kMetaDriver = QV_CODEC("MD", QvDatabaseProtocolSimulator_metaDriver);

/// Reads one element of `root`: a class object, or the driver object, which has no class.
int parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    if (!QvJsonValue_isEmpty(QvJsonValue_member(pValue, kAuto.member))) {
        const int status = auto_parse(handle, pValue);
        return status == kSuccess ? status : QV_FAIL(status);
    }
    int status = readCategory(handle, kMisc, pValue);
    if (status != kSuccess) {
        return status;
    }
    QvJsonValue_t* pDriver = QvJsonValue_member(pValue, "driver");
    const std::size_t number = QvJsonValue_size(pDriver);
    for (std::size_t i = 0; i < number; ++i) {
        status = manual_parse(handle, QvJsonValue_item(pDriver, i));
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    return readCategory(handle, kMetaDriver, pValue);
}

/// Writes all classes of a table, whatever the records' switches say.
int writeClasses(QvDatabaseHandle_t handle, const ClassTable& table, QvJsonValue_t* pArray)
{
    if (handle == 0 || pArray == nullptr) {
        return kBadArgument;
    }
    for (const Class& row : table.rows) {
        void* pRecord = nullptr;
        int status = QvDatabase_query(handle, row.codec.key, &pRecord);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
        QvJsonValue_t* pObject = nullptr;
        status = QvJsonValue_create(QvJsonValueType_Object, &pObject);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
        status = QvJsonValue_addValueToArray(pArray, &pObject);
        if (status != kSuccess) {
            QvJsonValue_delete(&pObject);
            return QV_FAIL(status);
        }
        status = row.codec.serialize(pRecord, pObject);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
        // Last, over what the record held: after the load of a tuning document that is an empty text.
        status = QvJsonValue_addStringToObject(pObject, table.member, row.name);
        if (status != kSuccess) {
            return QV_FAIL(status);
        }
    }
    return kSuccess;
}

int auto_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pRoot)
{
    return writeClasses(handle, kAuto, pRoot);
}

int manual_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pDriver)
{
    return writeClasses(handle, kManual, pDriver);
}

/// Queries a category and writes it into the driver object.
int writeCategory(QvDatabaseHandle_t handle, const Codec& codec, QvJsonValue_t* pDriver)
{
    void* pRecord = nullptr;
    const int status = QvDatabase_query(handle, codec.key, &pRecord);
    return status == kSuccess ? codec.serialize(pRecord, pDriver) : status;
}

int serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pRoot)
{
    if (handle == 0 || pRoot == nullptr) {
        return kBadArgument;
    }
    int status = auto_serialize(handle, pRoot);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    QvJsonValue_t* pDriver = nullptr;
    status = QvJsonValue_create(QvJsonValueType_Object, &pDriver);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = QvJsonValue_addValueToArray(pRoot, &pDriver);
    if (status != kSuccess) {
        QvJsonValue_delete(&pDriver);
        return QV_FAIL(status);
    }
    status = writeCategory(handle, kMisc, pDriver);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = manual_serialize(handle, QvJsonValue_member(pDriver, "driver"));
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    status = writeCategory(handle, kMetaDriver, pDriver);
    return status == kSuccess || status == kMemberMissing ? status : QV_FAIL(status);
}

} // namespace

int QvDatabaseProtocolSimulator_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pRoot = nullptr;
    const int status = QvJsonPath(pValue, "root", &pRoot);
    if (status != kSuccess) {
        return QV_FAIL(status);
    }
    const std::size_t number = QvJsonValue_size(pRoot);
    for (std::size_t i = 0; i < number; ++i) {
        // An element that fails has left its trace; the walk goes on.
        static_cast<void>(parse(handle, QvJsonValue_item(pRoot, i)));
    }
    return kSuccess;
}

int QvDatabaseProtocolSimulator_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    const int status = serialize(handle, QvJsonValue_member(pValue, "root"));
    return status == kSuccess ? status : QV_FAIL(status);
}
