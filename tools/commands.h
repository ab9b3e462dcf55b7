#pragma once

// The commands of qvdb, one source each.

#include "options.h"

namespace qv::tools {

enum ExitStatus { kDone = 0, kRefused = 1, kUsageError = 2 };

ExitStatus convert(const Options& options);
ExitStatus info(const Options& options);
ExitStatus meta(const Options& options);
ExitStatus schema(const Options& options);

} // namespace qv::tools
