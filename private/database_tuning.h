#pragma once

#include <span>

#include "database_codec.h"

namespace qv::database {

/// One category of the tuning document.
struct TuningRow {
    Codec codec;
    bool isWritten = true;
};

/// The categories of the tuning document in the order of reading and writing.
std::span<const TuningRow> tuningRows();

} // namespace qv::database
