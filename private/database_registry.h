#pragma once

#include <cstddef>
#include <span>

#include <qv_database_c/qv_database.h>

#include "database_base_private.h"
#include "database_codec.h"

namespace qv::database {

/// One category: its key, what it takes to make its record, and the codecs of the documents that carry it.
struct Category {
    const char* key;
    const char* record;            ///< name of the C type
    std::size_t size;              ///< bytes of the record, here and in a binary image
    int (*reset)(void* pRecord);   ///< puts the defaults in; 13 for null
    bool isResetUnguarded = false; ///< the reset takes no null record
    bool isResetPartial = false;   ///< the reset looks at what the record holds
    Codec tuning = {};
    Codec simulator = {};
    SectionCodec initialization = {};

    constexpr Category unguarded() const
    {
        Category category = *this;
        category.isResetUnguarded = true;
        return category;
    }
    constexpr Category partial() const
    {
        Category category = *this;
        category.isResetPartial = true;
        return category;
    }
    constexpr Category simulated(Codec codec) const
    {
        Category category = *this;
        category.simulator = codec;
        return category;
    }
    constexpr Category sectioned(SectionCodec codec) const
    {
        Category category = *this;
        category.initialization = codec;
        return category;
    }
};

/// All registrations in their order. Two keys stand twice.
std::span<const Category> categories();

/// The first registration under a key; null if there is none.
const Category* findCategory(const char* pKey);

/// Makes a record for each category, puts its defaults in and adds it to the map. What was added stays on a failure.
int registerCategories(const Context_t* pContext);

/// The map's handler: releases one record. 13 when there is none.
int freeObject(void** ppConfig);

/// The record under a key straight from the map, for who must not go through a query. 0 or the map's status.
int findRecord(const Context_t* pContext, const char* pKey, void** ppRecord);

/// The category under a key and its record, by a query. 0 or the query's status.
int queryCategory(QvDatabaseHandle_t handle, const char* pKey, const Category** ppCategory, void** ppRecord);

/// Queries a record and types it.
template <class R>
int queryRecord(QvDatabaseHandle_t handle, const char* pKey, R** ppRecord)
{
    void* pData = nullptr;
    const int status = QvDatabase_query(handle, pKey, &pData);
    *ppRecord = static_cast<R*>(pData);
    return status;
}

} // namespace qv::database
