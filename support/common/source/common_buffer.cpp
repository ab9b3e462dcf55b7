#include <qv_common_c/common_buffer.h>

#include <cstddef>
#include <cstdlib>
#include <new>

#include <qv_common_c/common_error.h>

static_assert(offsetof(QvCommonBuffer_t, pUserData) == 24 && offsetof(QvCommonBuffer_t, isAllocated) == 32);

int QvCommonBuffer_create(QvCommonBuffer_t** ppBuffer)
{
    if (ppBuffer == nullptr || *ppBuffer != nullptr) {
        return QvCommonError_BadArgument;
    }
    *ppBuffer = new (std::nothrow) QvCommonBuffer_t{};
    return *ppBuffer != nullptr ? QvCommonError_Success : QvCommonError_OutOfMemory;
}

int QvCommonBuffer_delete(QvCommonBuffer_t** ppBuffer)
{
    if (ppBuffer == nullptr || *ppBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    QvCommonBuffer_clear(*ppBuffer);
    delete *ppBuffer;
    *ppBuffer = nullptr;
    return QvCommonError_Success;
}

int QvCommonBuffer_clear(QvCommonBuffer_t* pBuffer)
{
    if (pBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    if (pBuffer->isAllocated) {
        std::free(pBuffer->pBegin);
    }
    *pBuffer = {};
    return QvCommonError_Success;
}
