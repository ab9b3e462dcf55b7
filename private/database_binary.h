#pragma once

#include <span>

#include <qv_common_c/common_buffer.h>

#include "database_registry.h"

namespace qv::database {

/// The categories of the binary image in the order of the file.
std::span<const char* const> imageKeys();

/// Checks that a record fits behind the buffer's offset and leaves a line with its place at Debug; pArrow tells the
/// direction. 0, or 6 without a line.
int enterRecord(const QvCommonBuffer_t* pBuffer, const Category& row, const char* pArrow);

} // namespace qv::database
