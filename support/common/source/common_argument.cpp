#include <qv_common_c/common_argument.h>

#include <cstring>

bool QvCommonArgument_match(const char* pKey, const char* pName)
{
    return pKey != nullptr && pName != nullptr && std::strcmp(pKey, pName) == 0;
}
