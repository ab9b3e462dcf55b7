#pragma once

// What the walk over tables needs of the accessors beyond their exported interface.

#include <cstddef>

#include <qv_database_c/database_access.h>

namespace qv::database {

/// QvDatabaseAccess_floats21 with an end: numbers whose place lies at or behind `limit` floats are passed over.
int readRows(QvJsonValue_t* pValue, float* pData, std::size_t limit, const char* pKey);

} // namespace qv::database
