#include "files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

#include <qv_common_c/common_error.h>

#include "output.h"

namespace qv::tools {
namespace {

struct Suffix {
    std::string_view text;
    Form form;
};
constexpr std::array kSuffixes = {
    Suffix{".json", Form::Json}, Suffix{".ini", Form::Ini},   Suffix{".bin", Form::Image},
    Suffix{".img", Form::Image}, Suffix{".raw", Form::Image}, Suffix{".txt", Form::CalibrationText},
};

/// A stream has no size: it is read to its end, with a zero byte behind it, as a file is.
int readStream(QvCommonBuffer_t& buffer)
{
    std::size_t capacity = 0;
    std::size_t size = 0;
    char* pBytes = nullptr;
    for (;;) {
        if (capacity - size < 2) {
            capacity = capacity == 0 ? std::size_t{1} << 16 : capacity * 2;
            char* pMore = static_cast<char*>(std::realloc(pBytes, capacity));
            if (pMore == nullptr || size > QV_COMMON_BUFFER_LOAD_LIMIT) {
                std::free(pMore == nullptr ? pBytes : pMore);
                return pMore == nullptr ? QvCommonError_OutOfMemory : QvCommonError_Capacity;
            }
            pBytes = pMore;
        }
        const ssize_t got = read(STDIN_FILENO, pBytes + size, capacity - size - 1);
        if (got < 0 && errno != EINTR) {
            std::free(pBytes);
            return QvCommonError_Read;
        }
        if (got == 0) {
            pBytes[size] = '\0';
            buffer.pBegin = pBytes;
            buffer.size = size;
            buffer.isAllocated = true;
            return QvCommonError_Success;
        }
        size += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
}

std::string statusLine(const std::string& name, int status)
{
    return name + ": " + QvCommonError_text(status) + " (" + std::to_string(status) + ')';
}

} // namespace

bool isStream(const std::string& name)
{
    return name == "-" || name == "/dev/stdin" || name == "/dev/stdout" || name == "/dev/fd/0" || name == "/dev/fd/1";
}

const char* formName(Form form)
{
    constexpr std::array kNames = {"json", "ini", "image", "calibration text"};
    return kNames[static_cast<std::size_t>(form)];
}

std::string shownName(const std::string& name, bool isInput)
{
    if (!isStream(name)) {
        return name;
    }
    return isInput ? "standard input" : "standard output";
}

Form formOf(const std::string& name, const std::string& option)
{
    for (const Form form : {Form::Json, Form::Ini, Form::Image}) {
        if (option == formName(form)) {
            return form;
        }
    }
    if (isStream(name)) {
        return Form::Json;
    }
    for (const Suffix& suffix : kSuffixes) {
        if (name.ends_with(suffix.text)) {
            return suffix.form;
        }
    }
    warn(name + " is taken for a binary image, since its name ends in none of .json, .ini, .bin, .img and .raw; "
                "--from and --to say otherwise");
    return Form::Image;
}

bool readInput(const std::string& name, const Options& options, Input& input)
{
    input.name = name;
    const int status =
        isStream(name) ? readStream(*input.bytes.get()) : QvCommonBuffer_load2(name.c_str(), 0, 0, input.bytes.get());
    if (status != 0) {
        complain(statusLine(input.shown(), status));
        return false;
    }
    input.form = formOf(name, options.from);
    return true;
}

bool writeOutput(const std::string& name, std::string_view bytes)
{
    if (isStream(name)) {
        return printBytes(bytes); // what fails here is told where all of standard output is finished
    }
    QvCommonBuffer_t buffer{};
    buffer.pBegin = const_cast<char*>(bytes.data()); // a save only reads
    buffer.size = bytes.size();
    const int status = QvCommonBuffer_save2(&buffer, name.c_str(), 0);
    if (status != 0) {
        complain(statusLine(name, status));
    }
    return status == 0;
}

bool isSameFile(const std::string& left, const std::string& right)
{
    struct stat leftFile {};
    struct stat rightFile {};
    return !isStream(left) && !isStream(right) && stat(left.c_str(), &leftFile) == 0 &&
           stat(right.c_str(), &rightFile) == 0 && S_ISREG(leftFile.st_mode) && leftFile.st_dev == rightFile.st_dev &&
           leftFile.st_ino == rightFile.st_ino;
}

bool mayReplace(const std::string& name, std::span<const std::string> read, const Options& options)
{
    for (const std::string& other : read) {
        if (!options.isForced && isSameFile(name, other)) {
            complain(name + " is also read" + (other == name ? "" : " as " + other) +
                     "; -f writes over it all the same");
            return false;
        }
    }
    return true;
}

} // namespace qv::tools
