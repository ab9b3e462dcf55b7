#include "output.h"

#include <algorithm>
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

/// Bytes of the character that a text begins with; 0 for what is no UTF-8.
std::size_t lengthOfCharacter(std::string_view text)
{
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = at(0);
    const std::size_t length = first < 0x80 ? 1 : (first < 0xc2 ? 0 : (first < 0xe0 ? 2 : (first < 0xf0 ? 3 : 4)));
    if (first > 0xf4 || length > text.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xc0) != 0x80) {
            return 0;
        }
    }
    // Too long a form, half of a pair, or past the last.
    const bool isWrong = length > 2 && ((first == 0xe0 && at(1) < 0xa0) || (first == 0xed && at(1) >= 0xa0) ||
                                        (first == 0xf0 && at(1) < 0x90) || (first == 0xf4 && at(1) >= 0x90));
    return isWrong ? 0 : length;
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
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const std::size_t length = lengthOfCharacter(std::string_view(text).substr(i));
        if (byte < 0x20 || byte == '"' || byte == '\\') {
            char escape[8];
            const bool isPlain = byte == '"' || byte == '\\';
            std::snprintf(escape, sizeof escape, isPlain ? "\\%c" : "\\u%04x", byte);
            quoted += escape;
        } else if (length == 0) {
            quoted += "\\ufffd";
        } else {
            quoted.append(text, i, length);
        }
        i += std::max<std::size_t>(length, 1);
    }
    return quoted + '"';
}

std::string plainText(std::string text)
{
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = lengthOfCharacter(std::string_view(text).substr(i));
        const auto byte = static_cast<unsigned char>(text[i]);
        if (length == 0 || byte < 0x20 || byte == 0x7f) {
            text[i] = '?';
        }
        i += std::max<std::size_t>(length, 1);
    }
    return text;
}

} // namespace qv::tools
