#include <qv_common_c/common_string.h>

#include <cstring>

namespace {

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

bool QvCommonString_equal(const char* pText, const char* pText2, bool isCaseSensitive)
{
    if (pText == nullptr || pText2 == nullptr) {
        return pText == pText2;
    }
    if (isCaseSensitive) {
        return std::strcmp(pText, pText2) == 0;
    }
    while (*pText != '\0' && lower(*pText) == lower(*pText2)) {
        ++pText;
        ++pText2;
    }
    return lower(*pText) == lower(*pText2);
}
