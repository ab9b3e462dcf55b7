#include "output.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <poll.h>
#include <unistd.h>

namespace qv::tools {
namespace {

bool isQuiet = false;
int outputError = 0; ///< errno of the first write that failed

/// Whether standard output is a pipe that nobody reads any more. A stream forgets why an earlier write of it failed.
bool isReaderGone()
{
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    return poll(&output, 1, 0) == 1 && (output.revents & (POLLERR | POLLHUP)) != 0;
}

} // namespace

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

bool printBytes(std::string_view bytes)
{
    errno = 0;
    const bool isDone = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
    if (!isDone && outputError == 0) {
        outputError = errno;
    }
    return isDone;
}

ExitStatus finishOutput(ExitStatus status)
{
    if (printBytes("") && std::ferror(stdout) == 0) {
        return status;
    }
    if (outputError != EPIPE && !isReaderGone()) {
        complain(std::string("standard output: ") + std::strerror(outputError != 0 ? outputError : EIO));
    }
    return kRefused;
}

void complain(const std::string& line)
{
    std::fflush(stdout);
    std::fprintf(stderr, "qvdb: %s\n", line.c_str());
}

void beQuiet()
{
    isQuiet = true;
}

void warn(const std::string& line)
{
    if (!isQuiet) {
        complain("warning: " + line);
    }
}

void say(const std::string& line)
{
    if (!isQuiet) {
        std::fprintf(stderr, "%s\n", line.c_str());
    }
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
