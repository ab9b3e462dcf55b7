#include <cstdio>
#include <string>

#include "commands.h"
#include "json_schema.h"
#include "suggest.h"

namespace qv::tools {

ExitStatus schema(const Options& options)
{
    const std::string name = options.words.empty() ? "" : options.words[0];
    std::string text;
    if (!makeSchema(name, text)) {
        return refuseUsage(options, "there is no schema of " + name +
                                        suggestion(name, {"tuning", "simulator", "calibration", "meta"}));
    }
    std::fputs(text.c_str(), stdout);
    return kDone;
}

} // namespace qv::tools
