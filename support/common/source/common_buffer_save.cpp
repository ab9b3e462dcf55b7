#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <system_error>
#include <unistd.h>

#include "boundary.h"
#include "file_descriptor.h"
#include <qv_common_c/common_buffer.h>

namespace {

using namespace qv::common;
namespace fs = std::filesystem;

constexpr int kMostLinks = 40;
constexpr int kMostSaves = 1000; // at once of one file
constexpr int kLookAhead = 4;
constexpr int kBriefLookAhead = 2;
constexpr mode_t kPermissionBits = 07777;

/// While it lives a write that fails sends this thread no signal, so that the failure comes back as a status in a
/// program that doesn't handle it.
class SignalGuard {
public:
    explicit SignalGuard(int signal)
    {
        sigset_t before;
        sigemptyset(&signals_);
        sigaddset(&signals_, signal);
        pthread_sigmask(SIG_BLOCK, &signals_, &before);
        isOurs_ = sigismember(&before, signal) == 0;
        if (!isOurs_) {
            sigset_t pending;
            sigpending(&pending);
            wasPending_ = sigismember(&pending, signal) == 1;
        }
    }
    SignalGuard(const SignalGuard&) = delete;
    SignalGuard& operator=(const SignalGuard&) = delete;
    ~SignalGuard()
    {
        if (isOurs_) {
            pthread_sigmask(SIG_UNBLOCK, &signals_, nullptr);
        }
    }

    /// Takes back the signal that a failed write has sent. One that waited before goes on waiting.
    void drop() const
    {
        constexpr timespec kNow = {};
        while (!wasPending_ && sigtimedwait(&signals_, nullptr, &kNow) < 0 && errno == EINTR) {
        }
    }

private:
    sigset_t signals_;
    bool isOurs_ = false;
    bool wasPending_ = false;
};

/// What is to be written, one block behind the other.
using Parts = std::span<const QvCommonBufferPart_t>;

/// `signal` is the one that a failure may send.
int writeAll(int descriptor, Parts parts, int signal)
{
    const SignalGuard guard(signal);
    std::size_t written = 0; // of the first part
    while (!parts.empty()) {
        std::array<iovec, 64> blocks;
        std::size_t number = 0;
        for (; number < blocks.size() && number < parts.size(); ++number) {
            const std::size_t from = number == 0 ? written : 0;
            blocks[number] = {const_cast<char*>(parts[number].pBegin) + from, parts[number].size - from};
        }
        const ssize_t count = ::writev(descriptor, blocks.data(), static_cast<int>(number));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            guard.drop();
            return QvCommonError_Write;
        }
        written += static_cast<std::size_t>(count);
        const bool isStuck = count == 0 && written < parts.front().size;
        while (!parts.empty() && written >= parts.front().size) {
            written -= parts.front().size;
            parts = parts.subspan(1);
        }
        if (isStuck) {
            return QvCommonError_Write;
        }
    }
    return QvCommonError_Success;
}

/// For what isn't a regular file.
int writeThrough(const char* pFilename, Parts content)
{
    FileDescriptor file(::open(pFilename, O_WRONLY | O_CLOEXEC | O_NOCTTY));
    if (!file.isOpen()) {
        return fileStatus(errno, QvCommonError_Write);
    }
    const int status = writeAll(file.get(), content, SIGPIPE); // the reader of a pipe went away
    return file.close() ? status : QvCommonError_Write;
}

/// Follows symbolic links by hand, since the last one may lead to a file that doesn't exist yet.
int followLinks(std::string& filename)
{
    fs::path path = filename;
    for (int link = 0; link < kMostLinks; ++link) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(path, error))) {
            filename = path.string();
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

/// The names under which new files for one target wait for their turn: ".qv_save.<hash of its name>.<number>". They can
/// be counted up rather than looked for, so that what a killed process left is found without reading the folder. A file
/// that waits is locked by its process; one that isn't is left over.
class WaitingNames {
public:
    WaitingNames(int folder, std::string_view target) : folder_(folder)
    {
        // FNV-1a: the same in every process. A target's own name may be too long.
        for (const char byte : target) {
            hash_ = (hash_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
        }
        constexpr std::string_view kBegin = ".qv_save.";
        char* p = name_.data() + kBegin.copy(name_.data(), kBegin.size());
        p = std::to_chars(p, name_.data() + name_.size(), hash_).ptr;
        *p = '.';
        pNumber_ = p + 1;
    }

    const char* name() const { return name_.data(); }

    /// Calls for one name after the other until the call doesn't fail because there is such a file. What is left over
    /// is removed. The call's last result.
    template <typename Call>
    int findFree(Call call)
    {
        while (number_ < kMostSaves) {
            makeName();
            const int result = call();
            if (result >= 0 || errno != EEXIST) {
                return result;
            }
            hasMetOthers_ = true;
            if (removeLeftOver() == Found::InUse) {
                ++number_;
            }
        }
        errno = EEXIST;
        return -1;
    }

    /// Removes what is left over behind the name that was found. Names in between may be free: their files have gone.
    /// Looking for more than a few names takes longer than writing a small file. Who had name and file for a moment only,
    /// and met nobody, has hardly a neighbour further off.
    void clean(bool isBrief)
    {
        const int ahead = isBrief && !hasMetOthers_ ? kBriefLookAhead : kLookAhead;
        for (int last = number_ + ahead; number_ < last && number_ < kMostSaves;) {
            ++number_;
            makeName();
            // Mostly there is nothing, and asking is cheaper than opening.
            struct stat named = {};
            const bool isThere = ::fstatat(folder_, name(), &named, AT_SYMLINK_NOFOLLOW) == 0 || errno != ENOENT;
            if (isThere && removeLeftOver() != Found::Nothing) {
                last = number_ + kLookAhead;
            }
        }
    }

private:
    enum class Found { Nothing, InUse, Removed };

    // Takes no memory: once the target is replaced nothing may make the save a failure.
    void makeName() { *std::to_chars(pNumber_, name_.data() + name_.size(), number_).ptr = '\0'; }

    Found removeLeftOver() const
    {
        // Nobody waits for the other end of what isn't a file.
        const FileDescriptor file(::openat(folder_, name(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (!file.isOpen()) {
            return errno == ENOENT ? Found::Nothing : Found::InUse;
        }
        struct stat opened = {};
        struct stat named = {};
        if (flock(file.get(), LOCK_EX | LOCK_NB) != 0 || fstat(file.get(), &opened) != 0) {
            return Found::InUse;
        }
        // While we were looking its process may have given it the target's name, and another its own this one.
        if (::fstatat(folder_, name(), &named, AT_SYMLINK_NOFOLLOW) != 0 || named.st_ino != opened.st_ino ||
            named.st_dev != opened.st_dev) {
            return Found::Removed;
        }
        return S_ISREG(opened.st_mode) && ::unlinkat(folder_, name(), 0) == 0 ? Found::Removed : Found::InUse;
    }

    int folder_;
    int number_ = 0;
    bool hasMetOthers_ = false; // or what they left
    uint64_t hash_ = 0xCBF29CE484222325;
    std::array<char, 48> name_{};
    char* pNumber_ = nullptr; // where in the name it stands
};

/// One replacement of a file, or the making of a new one.
class Replacement {
public:
    /// `pOld` is null for a file that doesn't exist yet.
    Replacement(int folder, const char* pName, const struct stat* pOld, Parts content)
        : folder_(folder), pName_(pName), pOld_(pOld), content_(content), names_(folder, pName)
    {
    }

    int run()
    {
        int status = writeUnnamed();
        const bool isNamed = status == QvCommonError_NotSupported;
        if (isNamed) {
            status = writeNamed();
        }
        if (status != QvCommonError_Success) {
            return status;
        }
        if (::renameat(folder_, names_.name(), folder_, pName_) != 0) {
            status = fileStatus(errno, QvCommonError_Write);
            ::unlinkat(folder_, names_.name(), 0);
            return status;
        }
        names_.clean(!isNamed);
        // The new file is there. Whether the folder is on the disk, too, can't make that undone.
        fsync(folder_);
        return QvCommonError_Success;
    }

private:
    /// The mode is cut by the umask on making the file, which spares asking for the umask: that can't be done without
    /// changing it under the feet of other threads. A file that takes another's place is nobody's to read before it has
    /// that one's owner and mode; one without a name can't be opened anyway, and mostly has the right mode at once.
    mode_t namedMode() const { return pOld_ != nullptr ? 0600 : 0666; }
    mode_t unnamedMode() const { return pOld_ != nullptr ? pOld_->st_mode & 0777 : 0666; }

    /// A file without a name is gone with its process. It gets a name once it is whole. Not every file system knows
    /// such files, and not everywhere is there a /proc to name them by.
    int writeUnnamed()
    {
        file_ = FileDescriptor(::openat(folder_, ".", O_WRONLY | O_TMPFILE | O_CLOEXEC, unnamedMode()));
        if (!file_.isOpen()) {
            return QvCommonError_NotSupported;
        }
        if (const int status = fill(); status != QvCommonError_Success) {
            return status;
        }
        flock(file_.get(), LOCK_EX | LOCK_NB);
        const int linked = names_.findFree([&] { return giveName(); });
        return linked == 0 ? QvCommonError_Success : QvCommonError_NotSupported;
    }

    int giveName() const
    {
        // By itself is the shorter way, but not every system lets every user go it.
        const int linked = ::linkat(file_.get(), "", folder_, names_.name(), AT_EMPTY_PATH);
        if (linked == 0 || errno == EEXIST) {
            return linked;
        }
        std::array<char, 32> self{};
        std::snprintf(self.data(), self.size(), "/proc/self/fd/%d", file_.get());
        return ::linkat(AT_FDCWD, self.data(), folder_, names_.name(), AT_SYMLINK_FOLLOW);
    }

    int writeNamed()
    {
        struct stat state = {};
        do {
            file_ = FileDescriptor(names_.findFree([&] {
                return ::openat(folder_, names_.name(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, namedMode());
            }));
            if (!file_.isOpen()) {
                return fileStatus(errno, QvCommonError_Write);
            }
            // Until it is locked another process may take it for left over.
        } while ((flock(file_.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) ||
                 (fstat(file_.get(), &state) == 0 && state.st_nlink == 0));
        const int status = fill();
        if (status != QvCommonError_Success) {
            ::unlinkat(folder_, names_.name(), 0);
        }
        return status;
    }

    int fill()
    {
        if (pOld_ != nullptr && !inherit()) {
            return QvCommonError_Write;
        }
        const int status = writeAll(file_.get(), content_, SIGXFSZ); // the limit on the size of files
        if (status != QvCommonError_Success) {
            return status;
        }
        return fsync(file_.get()) == 0 ? QvCommonError_Success : QvCommonError_Write;
    }

    /// Gives the new file what belongs to the old one beside its content.
    bool inherit() const
    {
        struct stat made = {};
        if (fstat(file_.get(), &made) == 0 && made.st_uid == pOld_->st_uid && made.st_gid == pOld_->st_gid &&
            made.st_mode == pOld_->st_mode) {
            return true;
        }
        // Where the owner can't be kept the file is better saved under another one than not at all.
        [[maybe_unused]] const int owner = fchown(file_.get(), pOld_->st_uid, pOld_->st_gid);
        return fchmod(file_.get(), pOld_->st_mode & kPermissionBits) == 0;
    }

    int folder_;
    const char* pName_;
    const struct stat* pOld_;
    Parts content_;
    WaitingNames names_;
    FileDescriptor file_; // stays open, and so locked, until it has the target's name
};

int replace(const char* pTarget, const struct stat* pOld, Parts content)
{
    const char* pSlash = std::strrchr(pTarget, '/');
    const char* pName = pSlash != nullptr ? pSlash + 1 : pTarget;
    if (*pName == '\0') {
        return QvCommonError_NotFound;
    }
    // Renaming doesn't ask whether the old file may be written.
    if (pOld != nullptr && faccessat(AT_FDCWD, pTarget, W_OK, AT_EACCESS) != 0) {
        return fileStatus(errno, QvCommonError_Write);
    }
    const std::string path = pSlash != nullptr ? std::string(pTarget, pName) : ".";
    FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen() && errno == EACCES) {
        // One may be written without being readable, but then it can't be flushed.
        folder = FileDescriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    }
    if (!folder.isOpen()) {
        return fileStatus(errno, QvCommonError_Write);
    }
    return Replacement(folder.get(), pName, pOld, content).run();
}

int save(const char* pFilename, Parts content)
{
    struct stat old = {};
    int found = ::lstat(pFilename, &old);
    const bool isLink = found == 0 && S_ISLNK(old.st_mode);
    if (isLink) {
        found = ::stat(pFilename, &old);
    }
    const bool exists = found == 0;
    if (!exists && errno != ENOENT) {
        return fileStatus(errno, QvCommonError_Write);
    }
    if (exists && S_ISDIR(old.st_mode)) {
        return QvCommonError_IsFolder;
    }
    if (exists && !S_ISREG(old.st_mode)) {
        return writeThrough(pFilename, content);
    }
    std::string target;
    if (isLink) {
        target = pFilename;
        const int status = followLinks(target);
        if (status != QvCommonError_Success) {
            return status;
        }
        pFilename = target.c_str();
    }
    return replace(pFilename, exists ? &old : nullptr, content);
}

} // namespace

int QvCommonBuffer_save2(QvCommonBuffer_t* pBuffer, const char* pFilename, std::size_t size)
{
    if (pBuffer == nullptr || pFilename == nullptr || (pBuffer->pBegin == nullptr && pBuffer->size != 0)) {
        return QvCommonError_BadArgument;
    }
    if (size > pBuffer->size) {
        return QvCommonError_Capacity;
    }
    const QvCommonBufferPart_t content = {pBuffer->pBegin, size != 0 ? size : pBuffer->size};
    return guarded([&] { return save(pFilename, {&content, 1}); });
}

int QvCommonBuffer_saveParts(const QvCommonBufferPart_t* pParts, std::size_t number, const char* pFilename)
{
    if (pFilename == nullptr || (pParts == nullptr && number != 0)) {
        return QvCommonError_BadArgument;
    }
    const Parts parts(pParts, number);
    const auto isMissing = [](const QvCommonBufferPart_t& part) { return part.pBegin == nullptr && part.size != 0; };
    if (std::any_of(parts.begin(), parts.end(), isMissing)) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] { return save(pFilename, parts); });
}
