#pragma once

// The tables of the four value records, which rows of other records nest.

#include <qv_database_c/database_base.h>

#include "database_field.h"

namespace qv::database::tuning {

extern const TableOf<QvDatabaseGain_t> kGain;
extern const TableOf<QvDatabasePoint_t> kPoint;
extern const TableOf<QvDatabaseRange_t> kRange;
extern const TableOf<QvDatabaseRectangle_t> kRectangle;

} // namespace qv::database::tuning
