#pragma once

// Every table there is, by the document it belongs to. A table is defined in the source of its record or codec; whoever
// wants to walk the forms as data (to list, check or compare them) begins at forms().

#include <span>

#include "database_field.h"

namespace qv::database {

/// One table with the document that it forms and the category whose record it describes.
struct Form {
    const char* document; ///< "tuning", "version", "simulator", "calibration", "initialization", "meta", "results",
                          ///< "register" or "value"
    const char* key;      ///< the category's key; a value record's type name
    const Table* table;
};

/// All tables, document by document.
std::span<const Form> forms();

} // namespace qv::database
