#include "qv_initialization/initialization_member.h"

#include <cstdlib>

#include "qv_common_c/common_error.h"

int QvInitializationMember_create(QvInitializationMember_t** ppMember)
{
    if (ppMember == nullptr || *ppMember != nullptr) {
        return QvCommonError_BadArgument;
    }
    *ppMember = static_cast<QvInitializationMember_t*>(std::calloc(1, sizeof(QvInitializationMember_t)));
    return *ppMember != nullptr ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

int QvInitializationMember_delete(QvInitializationMember_t** ppMember)
{
    if (ppMember == nullptr || *ppMember == nullptr) {
        return QvCommonError_BadArgument;
    }
    std::free((*ppMember)->pKey);
    std::free((*ppMember)->pValue);
    std::free((*ppMember)->pComment);
    std::free(*ppMember);
    *ppMember = nullptr;
    return QvCommonError_Success;
}
