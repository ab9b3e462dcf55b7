#include "file_descriptor.h"

#include <cerrno>
#include <unistd.h>

#include <qv_common_c/common_error.h>

namespace qv::common {

bool FileDescriptor::close()
{
    const int descriptor = std::exchange(descriptor_, -1);
    // After an interrupted close the descriptor is gone all the same.
    return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
}

int fileStatus(int error, int other)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
        return QvCommonError_NotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return QvCommonError_AccessDenied;
    case EISDIR:
        return QvCommonError_IsFolder;
    case ENOMEM:
        return QvCommonError_OutOfMemory;
    default:
        return other;
    }
}

} // namespace qv::common
