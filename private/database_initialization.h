#pragma once

#include <iterator>
#include <span>

#include <qv_common_c/common_dqueue.h>

#include "database_registry.h"

namespace qv::database {

/// The categories of the initialization document in the order of writing; a section's name is the category's key.
inline constexpr const char* kSectionKeys[] = {"C_MODEL", "DVC", "IPT", "OPT", "SS", "TM"};

/// The same as categories.
std::span<const Category* const> sectionCategories();

/// A queue that owns the sections pushed to it.
int openSections(QvCommonDQueueHandle_t* pHandle);

} // namespace qv::database
