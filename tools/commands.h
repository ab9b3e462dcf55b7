#pragma once

// The commands of qvdb, one source each.

#include "options.h"

namespace qv::tools {

ExitStatus at(const Options& options);
ExitStatus check(const Options& options);
ExitStatus completePath(const Options& options);
ExitStatus convert(const Options& options);
ExitStatus coverage(const Options& options);
ExitStatus diff(const Options& options);
ExitStatus dump(const Options& options);
ExitStatus fields(const Options& options);
ExitStatus get(const Options& options);
ExitStatus info(const Options& options);
ExitStatus merge(const Options& options);
ExitStatus meta(const Options& options);
ExitStatus report(const Options& options);
ExitStatus schema(const Options& options);
ExitStatus set(const Options& options);

} // namespace qv::tools
