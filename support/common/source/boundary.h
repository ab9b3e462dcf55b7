#pragma once

#include <cstdint>
#include <new>

#include <qv_common_c/common_error.h>

namespace qv::common {

/// Runs the body of a C operation and turns what it throws into a status.
template <typename Body>
int guarded(Body body) noexcept
{
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return QvCommonError_OutOfMemory;
    } catch (...) {
        return QvCommonError_Failure;
    }
}

template <typename Object>
uintptr_t toHandle(Object* pObject)
{
    return reinterpret_cast<uintptr_t>(pObject);
}

template <typename Object>
Object* fromHandle(uintptr_t handle)
{
    return reinterpret_cast<Object*>(handle);
}

/// An output variable is there and clear.
inline bool isClear(const uintptr_t* pHandle)
{
    return pHandle != nullptr && *pHandle == 0;
}

/// A variable is there and holds a handle.
inline bool isSet(const uintptr_t* pHandle)
{
    return pHandle != nullptr && *pHandle != 0;
}

} // namespace qv::common
