#include "traces.h"

#include <cstdio>
#include <string_view>

namespace qv::tools {

int Traces::write(void* pUserData, QvCommonTracerLevel_t level, const char* pText, std::size_t length)
{
    auto& self = *static_cast<Traces*>(pUserData);
    const std::string_view line{pText, length};
    constexpr std::string_view kInfo = "info: ";
    // Its labels are the wrong way round; a session words its own.
    constexpr std::string_view kVersion = "Json and code version are not match";
    if (level == QvCommonTracerLevel_Info && self.showsInfo) {
        const std::string_view text = line.starts_with(kInfo) ? line.substr(kInfo.size()) : line;
        std::printf("%.*s\n", static_cast<int>(text.size()), text.data());
    } else if (level == QvCommonTracerLevel_Warning && line.find(kVersion) == std::string_view::npos) {
        std::fprintf(stderr, "%s\n", pText);
    }
    if (level == QvCommonTracerLevel_Error && self.firstError.empty()) {
        self.firstError = line;
    }
    return 0;
}

} // namespace qv::tools
