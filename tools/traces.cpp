#include "traces.h"

#include <cstdio>
#include <string_view>

namespace qv::tools {

int Traces::write(void* pUserData, QvCommonTracerLevel_t level, const char* pText, std::size_t length)
{
    auto& self = *static_cast<Traces*>(pUserData);
    const std::string_view line{pText, length};
    constexpr std::string_view kInfo = "info: ";
    if (level == QvCommonTracerLevel_Info && self.showsInfo) {
        const std::string_view text = line.starts_with(kInfo) ? line.substr(kInfo.size()) : line;
        std::printf("%.*s\n", static_cast<int>(text.size()), text.data());
    } else if (self.isVerbose || level == QvCommonTracerLevel_Warning) {
        std::fprintf(stderr, "%s\n", pText);
    }
    if (level == QvCommonTracerLevel_Error && self.firstError.empty()) {
        self.firstError = line;
    }
    return 0;
}

} // namespace qv::tools
