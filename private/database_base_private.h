#pragma once

#include <qv_common_c/common_map.h>
#include <qv_database_c/database_base.h>
#include <qv_initialization/initialization_reader.h>
#include <qv_initialization/initialization_writer.h>
#include <qv_json_c/json_reader.h>
#include <qv_json_c/json_writer.h>

/// An open database. Its address is the value of QvDatabaseHandle_t.
struct Context_t {
    QvDatabaseOpenParam_t openParam;
    char description[30]; ///< begins the message of a category that is not registered
    QvInitializationReaderHandle_t hInitializationReader;
    QvInitializationWriterHandle_t hInitializationWriter;
    QvJsonReaderHandle_t hJsonReader;
    QvJsonWriterHandle_t hJsonWriter;
    QvCommonMapHandle_t hMap; ///< from a category's key to a slot whose pObject is the record
};

namespace qv::database {

inline Context_t* contextOf(QvDatabaseHandle_t handle)
{
    return reinterpret_cast<Context_t*>(handle);
}

} // namespace qv::database
