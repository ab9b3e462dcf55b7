#pragma once

// Why the library refused a file, in the words of who wrote it.

#include <string>

#include "files.h"

namespace qv::tools {

/// What a load that was refused with this status stumbled over, and where; empty where there is nothing more to tell
/// than the status does.
std::string refusalOf(const Input& input, int status);

/// Bytes of a binary image.
std::size_t imageSize();

} // namespace qv::tools
