#include "output.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <unistd.h>

namespace qv::tools {

bool isTerminal(FILE* pStream)
{
    return isatty(fileno(pStream)) == 1;
}

bool isColoured(FILE* pStream)
{
    const char* pNoColour = std::getenv("NO_COLOR");
    const char* pTerminal = std::getenv("TERM");
    return (pNoColour == nullptr || *pNoColour == '\0') &&
           (pTerminal == nullptr || std::strcmp(pTerminal, "dumb") != 0) && isTerminal(pStream);
}

ExitStatus finishOutput(ExitStatus status)
{
    errno = 0;
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return status;
    }
    if (errno != EPIPE) {
        std::fprintf(stderr, "qvdb: standard output: %s\n", std::strerror(errno != 0 ? errno : EIO));
    }
    return kRefused;
}

void complain(const std::string& line)
{
    std::fflush(stdout);
    std::fprintf(stderr, "qvdb: %s\n", line.c_str());
}

std::string jsonText(const std::string& text)
{
    std::string quoted = "\"";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == '"' || byte == '\\') {
            char escape[8];
            const bool isPlain = byte == '"' || byte == '\\';
            std::snprintf(escape, sizeof escape, isPlain ? "\\%c" : "\\u%04x", byte);
            quoted += escape;
        } else {
            quoted += character;
        }
    }
    return quoted + '"';
}

} // namespace qv::tools
