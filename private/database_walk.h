#pragma once

// The one walk over tables that carries records into JSON values and back.

#include <cstring>
#include <type_traits>

#include <qv_json_c/json_value.h>

#include "database_field.h"
#include "database_status.h"

namespace qv::database {

/// The C record of a table, as in RecordOf<decltype(kMisc)>.
template <class T>
using RecordOf = typename std::remove_cvref_t<T>::Record;

/// Reads the members that the table names from an object into the record at pRecord. A member that is missing costs a
/// member trace and leaves its field as it was. The result is 0, or the status of a list that is too long for its
/// array. Nothing is stored outside the record, whatever the document holds.
int readTable(const Table& table, QvJsonValue_t* pValue, void* pRecord);

/// Adds the members that the table names to an object. Nothing is read outside the record, whatever it holds. The
/// result is 0, or the status of a container that could not be made.
int writeTable(const Table& table, const void* pRecord, QvJsonValue_t* pValue);

/// The body of most parsers: the test of the arguments, then the table.
template <class R>
int readRecord(const TableOf<R>& table, QvJsonValue_t* pValue, std::type_identity_t<R>* pConfig)
{
    return pValue == nullptr || pConfig == nullptr ? static_cast<int>(kBadArgument) : readTable(table, pValue, pConfig);
}

/// The body of most serializers: the test of the arguments, then the table.
template <class R>
int writeRecord(const TableOf<R>& table, const std::type_identity_t<R>* pConfig, QvJsonValue_t* pValue)
{
    return pValue == nullptr || pConfig == nullptr ? static_cast<int>(kBadArgument)
                                                   : writeTable(table, pConfig, pValue);
}

/// The body of most resets: copies the defaults, padding included, over the whole record.
template <class R>
int resetRecord(R* pConfig, const std::type_identity_t<R>& defaults)
{
    if (pConfig == nullptr) {
        return kBadArgument;
    }
    std::memcpy(pConfig, &defaults, sizeof(R));
    return kSuccess;
}

/// The reset of a record whose defaults are all zero.
template <class R>
int clearRecord(R* pConfig)
{
    if (pConfig == nullptr) {
        return kBadArgument;
    }
    std::memset(pConfig, 0, sizeof(R));
    return kSuccess;
}

} // namespace qv::database

// Functions of a record that its table says all of, a line each. Their prototypes stand in the public header, and one
// that disagrees with the table's record is a conflicting declaration.

/// `stem`_parse and `stem`_serialize: 13 for a null argument, then the table.
#define QV_CODECS(stem, table) QV_CODECS_BY(readRecord, writeRecord, stem, table)
/// The same for codecs whose callers answer for the arguments.
#define QV_UNTESTED_CODECS(stem, table) QV_CODECS_BY(readTable, writeTable, stem, table)
#define QV_CODECS_BY(read, write, stem, table)                                                                         \
    int stem##_parse(QvJsonValue_t* pValue, ::qv::database::RecordOf<decltype(table)>* pConfig)                        \
    {                                                                                                                  \
        return ::qv::database::read(table, pValue, pConfig);                                                           \
    }                                                                                                                  \
    int stem##_serialize(::qv::database::RecordOf<decltype(table)>* pConfig, QvJsonValue_t* pValue)                    \
    {                                                                                                                  \
        return ::qv::database::write(table, pConfig, pValue);                                                          \
    }

/// `stem`_reset of a record whose defaults are all zero: 13 for null.
#define QV_CLEARED_RESET(stem)                                                                                         \
    int stem##_reset(stem##_t* pConfig)                                                                                \
    {                                                                                                                  \
        return ::qv::database::clearRecord(pConfig);                                                                   \
    }
/// `stem`_reset to defaults given as a value of the record: 13 for null.
#define QV_DEFAULT_RESET(stem, defaults)                                                                               \
    int stem##_reset(stem##_t* pConfig)                                                                                \
    {                                                                                                                  \
        return ::qv::database::resetRecord(pConfig, defaults);                                                         \
    }
