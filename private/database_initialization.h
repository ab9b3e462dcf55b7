#pragma once

#include <iterator>
#include <span>

#include <qv_common_c/common_dqueue.h>
#include <qv_initialization/initialization_section.h>

#include "database_registry.h"

namespace qv::database {

/// The categories of the initialization document in the order of writing; a section's name is the category's key.
inline constexpr const char* kSectionKeys[] = {"C_MODEL", "DVC", "IPT", "OPT", "SS", "TM"};

/// The same as categories.
std::span<const Category* const> sectionCategories();

inline int deleteSection(void** ppElement)
{
    auto* pSection = static_cast<QvInitializationSection_t*>(*ppElement);
    const int status = QvInitializationSection_delete(&pSection);
    *ppElement = pSection;
    return status;
}

/// A queue that owns the sections pushed to it.
inline int openSections(QvCommonDQueueHandle_t* pHandle)
{
    QvCommonDQueueOpenParam_t param{};
    param.pDeleteDataHandler = &deleteSection;
    return QvCommonDQueue_open(&param, pHandle);
}

} // namespace qv::database
