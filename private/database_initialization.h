#pragma once

#include <span>

#include <qv_common_c/common_dqueue.h>
#include <qv_initialization/initialization_section.h>

#include "database_trace.h"

namespace qv::database {

/// Reads and writes one section of the initialization document; the section's name is the category's key.
struct SectionCodec {
    const char* key;
    int (*parse)(QvInitializationSection_t* pSection, void* pRecord);
    int (*serialize)(void* pRecord, QvInitializationSection_t* pSection);
};

/// The sections in the order of writing.
std::span<const SectionCodec> sections();

/// A queue that owns the sections pushed to it.
int openSections(QvCommonDQueueHandle_t* pHandle);

/// A section that fails costs a line at Warning, and the walk goes on.
void warnSection(const Place& place, int status);

} // namespace qv::database
