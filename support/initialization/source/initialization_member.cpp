#include <qv_initialization/initialization_member.h>

#include <cstdlib>

#include <qv_common_c/common_error.h>

int QvInitializationMember_create(QvInitializationMember_t** ppMember)
{
    if (ppMember == nullptr || *ppMember != nullptr) {
        return QvCommonError_BadArgument;
    }
    // A C library keeps small blocks for malloc() at hand, and for calloc() it doesn't.
    *ppMember = static_cast<QvInitializationMember_t*>(std::malloc(sizeof(QvInitializationMember_t)));
    if (*ppMember == nullptr) {
        return QvCommonError_OutOfMemory;
    }
    **ppMember = {};
    return QvCommonError_Success;
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
