#include <qv_common_c/common_error.h>

#include <array>
#include <cstddef>

namespace {

constexpr std::array<const char*, QvCommonError_Sum> kTexts = {
    "success",
    "failure",
    "no such content",
    "file not found",
    "access denied",
    "out of memory",
    "too short or over capacity",
    "syntax error",
    "no such entry",
    "is a folder",
    "member missing or empty",
    "read error",
    "write error",
    "bad arguments",
    "not supported",
    "key or bracket not found",
};
static_assert(kTexts.back() != nullptr, "every status needs a text");

} // namespace

const char* QvCommonError_text(int status)
{
    if (status < 0 || status >= QvCommonError_Sum) {
        return "unknown status";
    }
    return kTexts[static_cast<std::size_t>(status)];
}
