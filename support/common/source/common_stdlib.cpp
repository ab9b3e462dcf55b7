#include <qv_common_c/common_stdlib.h>

#include <clocale>
#include <cstdlib>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale isn't in <clocale>

namespace {

/// Made once and kept for good. Null if the C library can't give it: then the process's own locale has to do.
locale_t cLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

void setEnd(char** ppEnd, char* pEnd)
{
    if (ppEnd != nullptr) {
        *ppEnd = pEnd;
    }
}

} // namespace

long QvCommonStdlib_strtol(const char* pText, char** ppEnd, int32_t base)
{
    if (pText == nullptr) {
        setEnd(ppEnd, nullptr);
        return 0;
    }
    return cLocale() != nullptr ? strtol_l(pText, ppEnd, base, cLocale()) : std::strtol(pText, ppEnd, base);
}

float QvCommonStdlib_strtof(const char* pText, char** ppEnd)
{
    if (pText == nullptr) {
        setEnd(ppEnd, nullptr);
        return 0;
    }
    return cLocale() != nullptr ? strtof_l(pText, ppEnd, cLocale()) : std::strtof(pText, ppEnd);
}
