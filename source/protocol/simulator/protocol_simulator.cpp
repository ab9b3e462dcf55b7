#include <qv_database_c/protocol_simulator_codecs.h>

#include <string_view>

#include <qv_json_c/json_path.h>

#include "database_registry.h"
#include "database_shortage.h"
#include "database_status.h"
#include "database_trace.h"
#include "protocol_simulator.h"

using namespace qv::database;

namespace {

/// Adds an empty object to an array; a failure leaves the array as it was.
int addObject(QvJsonValue_t* pArray, QvJsonValue_t** ppObject)
{
    int status = QvJsonValue_create(QvJsonValueType_Object, ppObject);
    if (status != kSuccess) {
        return status;
    }
    status = QvJsonValue_addValueToArray(pArray, ppObject); // gives the object's place in the array
    if (status != kSuccess) {
        QvJsonValue_delete(ppObject);
    }
    return status;
}

/// Queries a category and reads it from an object; failures are traced for pFunction.
int readCategory(QvDatabaseHandle_t handle, const char* pKey, QvJsonValue_t* pValue, const char* pFunction)
{
    const Category* pCategory = nullptr;
    void* pRecord = nullptr;
    QV_TRY_AS(pFunction, queryCategory(handle, pKey, &pCategory, &pRecord));
    // No class has a list that can be too long, which is all that reading fails for.
    QV_TRY_AS(pFunction, pCategory->simulator.parse(pValue, pRecord)); // GCOVR_EXCL_BR_LINE
    return kSuccess;
}

/// Reads one class object. A class that the table doesn't know, or that is no text, is passed over without a word.
int readClass(QvDatabaseHandle_t handle, const ClassTable& table, QvJsonValue_t* pValue, const char* pFunction)
{
    const char* pName = QvJsonValue_asString(QvJsonValue_member(pValue, table.member));
    if (pName == nullptr) {
        return kSuccess;
    }
    for (const SimulatorClass& row : table.rows) {
        if (std::string_view{row.name} == pName) {
            return readCategory(handle, row.key, pValue, pFunction);
        }
    }
    return kSuccess;
}

int auto_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    return readClass(handle, kAutoClasses, pValue, __func__);
}

int manual_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    return readClass(handle, kManualClasses, pValue, __func__);
}

/// Reads one element of `root`: a class object, or the driver object, which has no class.
int parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (!QvJsonValue_isEmpty(QvJsonValue_member(pValue, kAutoClasses.member))) {
        QV_TRY(auto_parse(handle, pValue));
        return kSuccess;
    }
    int status = readCategory(handle, kDriverKeys[0], pValue, __func__);
    if (status != kSuccess) {
        return status;
    }
    QvJsonValue_t* pDriver = QvJsonValue_member(pValue, "driver");
    const std::size_t number = QvJsonValue_size(pDriver);
    for (std::size_t i = 0; i < number; ++i) {
        QV_TRY(manual_parse(handle, QvJsonValue_item(pDriver, i)));
    }
    return readCategory(handle, kDriverKeys[1], pValue, __func__);
}

/// Writes all classes of a table, whatever the records' switches say.
int writeClasses(QvDatabaseHandle_t handle, const ClassTable& table, QvJsonValue_t* pArray, const char* pFunction)
{
    for (const SimulatorClass& row : table.rows) {
        const Category* pCategory = nullptr;
        void* pRecord = nullptr;
        QV_TRY_AS(pFunction, queryCategory(handle, row.key, &pCategory, &pRecord));
        QvJsonValue_t* pObject = nullptr;
        QV_TRY_AS(pFunction, addObject(pArray, &pObject));
        QV_TRY_AS(pFunction, pCategory->simulator.serialize(pRecord, pObject));
        // Last, over what the record held: after the load of a tuning document that is an empty text.
        QV_TRY_AS(pFunction, QvJsonValue_addStringToObject(pObject, table.member, row.name));
    }
    return kSuccess;
}

int auto_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pRoot)
{
    return writeClasses(handle, kAutoClasses, pRoot, __func__);
}

int manual_serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pDriver)
{
    return writeClasses(handle, kManualClasses, pDriver, __func__);
}

/// Queries a category and writes it into the driver object.
int writeCategory(QvDatabaseHandle_t handle, const char* pKey, QvJsonValue_t* pDriver)
{
    const Category* pCategory = nullptr;
    void* pRecord = nullptr;
    const int status = queryCategory(handle, pKey, &pCategory, &pRecord);
    return status == kSuccess ? pCategory->simulator.serialize(pRecord, pDriver) : status;
}

int serialize(QvDatabaseHandle_t handle, QvJsonValue_t* pRoot)
{
    QV_TRY(auto_serialize(handle, pRoot));
    QvJsonValue_t* pDriver = nullptr;
    QV_TRY(addObject(pRoot, &pDriver));
    QV_TRY(writeCategory(handle, kDriverKeys[0], pDriver));
    QV_TRY(manual_serialize(handle, writableMember(pDriver, "driver")));
    const int status = writeCategory(handle, kDriverKeys[1], pDriver);
    // A member that is missing is no failure of the driver object; no codec gives that status at present.
    return status == kSuccess || status == kMemberMissing ? status : QV_FAIL(status); // GCOVR_EXCL_BR_LINE
}

} // namespace

int QvDatabaseProtocolSimulator_parse(QvDatabaseHandle_t handle, QvJsonValue_t* pValue)
{
    if (handle == 0 || pValue == nullptr) {
        return kBadArgument;
    }
    QvJsonValue_t* pRoot = nullptr;
    QV_TRY(QvJsonPath(pValue, "root", &pRoot));
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
    QV_TRY(serialize(handle, writableMember(pValue, "root")));
    return kSuccess;
}
