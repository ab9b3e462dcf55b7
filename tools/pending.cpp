// The commands that are still to come.

#include "commands.h"

namespace qv::tools {

namespace {
ExitStatus notYet(const Options& options)
{
    return refuseUsage(options, "is still to come");
}
} // namespace

ExitStatus at(const Options& options)
{
    return notYet(options);
}
ExitStatus coverage(const Options& options)
{
    return notYet(options);
}
ExitStatus diff(const Options& options)
{
    return notYet(options);
}
ExitStatus dump(const Options& options)
{
    return notYet(options);
}
ExitStatus fields(const Options& options)
{
    return notYet(options);
}

} // namespace qv::tools
