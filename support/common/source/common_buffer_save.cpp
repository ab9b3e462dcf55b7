#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "boundary.h"
#include "file_descriptor.h"
#include "qv_common_c/common_buffer.h"

namespace {

using namespace qv::common;
namespace fs = std::filesystem;

constexpr int kMostLinks = 40;
constexpr mode_t kPermissionBits = 07777;

int writeAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t count = ::write(descriptor, content.data(), content.size());
        if (count > 0) {
            content.remove_prefix(static_cast<size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return QvCommonError_Write;
        }
    }
    return QvCommonError_Success;
}

// For what isn't a regular file.
int writeThrough(const char* pFilename, std::string_view content)
{
    FileDescriptor file(::open(pFilename, O_WRONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen()) {
        return fileStatus(errno, QvCommonError_Write);
    }
    const int status = writeAll(file.get(), content);
    return file.close() ? status : QvCommonError_Write;
}

// Follows symbolic links by hand, since the last one may lead to a file that doesn't exist yet.
int followLinks(fs::path& path)
{
    for (int link = 0; link < kMostLinks; ++link) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error))) {
            return QvCommonError_Success;
        }
        const fs::path target = fs::read_symlink(path, error);
        if (error) {
            return fileStatus(error.value(), QvCommonError_Write);
        }
        path = path.parent_path() / target;
    }
    return QvCommonError_NotFound;
}

// Makes a file of a new name in the folder of `target`. The mode is cut by the umask here, which spares asking for the
// umask: that can't be done without changing it under the feet of other threads.
FileDescriptor createBeside(const fs::path& target, mode_t mode, fs::path& path)
{
    static std::atomic<unsigned> counter = 0;
    int descriptor = -1;
    do {
        path = target.parent_path() / (".qv_save." + std::to_string(getpid()) + "." + std::to_string(++counter));
        descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    } while (descriptor < 0 && errno == EEXIST);
    return FileDescriptor(descriptor);
}

// Gives the new file what belongs to the old one beside its content.
bool inherit(int descriptor, const struct stat& old)
{
    // Where the owner can't be kept the file is better saved under another one than not at all.
    [[maybe_unused]] const int owner = fchown(descriptor, old.st_uid, old.st_gid);
    return fchmod(descriptor, old.st_mode & kPermissionBits) == 0;
}

int fill(FileDescriptor& file, const struct stat* pOld, std::string_view content)
{
    if (pOld != nullptr && !inherit(file.get(), *pOld)) {
        return QvCommonError_Write;
    }
    const int status = writeAll(file.get(), content);
    if (status != QvCommonError_Success) {
        return status;
    }
    const bool isOnDisk = fsync(file.get()) == 0;
    return file.close() && isOnDisk ? QvCommonError_Success : QvCommonError_Write;
}

// `pOld` is null for a file that doesn't exist yet.
int replace(const fs::path& target, const struct stat* pOld, std::string_view content)
{
    // Renaming doesn't ask whether the old file may be written.
    if (pOld != nullptr && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        return fileStatus(errno, QvCommonError_Write);
    }
    fs::path path;
    FileDescriptor file = createBeside(target, pOld != nullptr ? 0600 : 0666, path);
    if (!file.isOpen()) {
        return fileStatus(errno, QvCommonError_Write);
    }
    int status = fill(file, pOld, content);
    if (status == QvCommonError_Success && ::rename(path.c_str(), target.c_str()) != 0) {
        status = fileStatus(errno, QvCommonError_Write);
    }
    if (status != QvCommonError_Success) {
        ::unlink(path.c_str());
    }
    return status;
}

int save(const char* pFilename, std::string_view content)
{
    struct stat old = {};
    const bool exists = ::stat(pFilename, &old) == 0;
    if (!exists && errno != ENOENT) {
        return fileStatus(errno, QvCommonError_Write);
    }
    if (exists && S_ISDIR(old.st_mode)) {
        return QvCommonError_IsFolder;
    }
    if (exists && !S_ISREG(old.st_mode)) {
        return writeThrough(pFilename, content);
    }
    fs::path target = pFilename;
    if (!target.has_filename()) {
        return QvCommonError_NotFound;
    }
    const int status = followLinks(target);
    return status == QvCommonError_Success ? replace(target, exists ? &old : nullptr, content) : status;
}

} // namespace

int QvCommonBuffer_save2(QvCommonBuffer_t* pBuffer, const char* pFilename, size_t size)
{
    if (pBuffer == nullptr || pFilename == nullptr || (pBuffer->pBegin == nullptr && pBuffer->size != 0)) {
        return QvCommonError_BadArgument;
    }
    if (size > pBuffer->size) {
        return QvCommonError_Capacity;
    }
    const std::string_view content(pBuffer->pBegin, size != 0 ? size : pBuffer->size);
    return guarded([&] { return save(pFilename, content); });
}
