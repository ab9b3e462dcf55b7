#pragma once

// The one member loop and the one member block behind all sections of the initialization document.

#include <qv_initialization/initialization_section.h>
#include <qv_initialization/initialization_text.h>

#include "database_walk.h"

namespace qv::database {

/// Takes the members that the table knows from a section into the record. 0 or the status of a queue operation.
int readSection(const Table& table, QvInitializationSection_t* pSection, void* pRecord);

/// Adds one member for each row to a section. 0, the status of a queue operation, or 5 when memory runs out.
int writeSection(const Table& table, const void* pRecord, QvInitializationSection_t* pSection);

/// Adds the same members to a text, as the lines that they are there. 0, or 5 when memory runs out.
int writeLines(const Table& table, const void* pRecord, QvInitializationTextHandle_t hText);

} // namespace qv::database

/// `stem`_parse and `stem`_serialize of a section that its table says all of. Callers answer for the arguments.
#define QV_SECTION_CODECS(stem, table)                                                                                 \
    int stem##_parse(QvInitializationSection_t* pSection, ::qv::database::RecordOf<decltype(table)>* pConfig)          \
    {                                                                                                                  \
        return ::qv::database::readSection(table, pSection, pConfig);                                                  \
    }                                                                                                                  \
    int stem##_serialize(::qv::database::RecordOf<decltype(table)>* pConfig, QvInitializationSection_t* pSection)      \
    {                                                                                                                  \
        return ::qv::database::writeSection(table, pConfig, pSection);                                                 \
    }
