// The commands that are still to come.

#include "commands.h"

namespace qv::tools {

ExitStatus merge(const Options& options)
{
    return refuseUsage(options, "is still to come");
}

} // namespace qv::tools
