#include <cstdio>
#include <string>

#include "commands.h"
#include "json_schema.h"

namespace qv::tools {

ExitStatus schema(const Options& options)
{
    std::string text;
    if (!makeSchema(options.files.empty() ? "" : options.files[0], text)) {
        return kUsageError;
    }
    if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
        std::perror("qvdb: schema");
        return kRefused;
    }
    return kDone;
}

} // namespace qv::tools
