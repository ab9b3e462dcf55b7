#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "file_descriptor.h"
#include "qv_common_c/common_buffer.h"
#include "qv_common_c/common_error.h"
#include "qv_common_c/common_tracer.h"

namespace {

using namespace qv::common;

constexpr size_t kFirstCapacity = 4096;
constexpr size_t kMost = QV_COMMON_BUFFER_LOAD_LIMIT;

// A block of malloc that grows, so that the buffer can take it over.
class Content {
public:
    // Makes room for one byte more than `capacity`, the zero byte behind the content.
    bool reserve(size_t capacity)
    {
        auto* pBlock = static_cast<char*>(std::realloc(pBlock_.get(), capacity + 1));
        if (pBlock == nullptr) {
            return false;
        }
        static_cast<void>(pBlock_.release());
        pBlock_.reset(pBlock);
        capacity_ = capacity;
        return true;
    }

    // Reads until `limit` bytes are there or the file ends, and ends the content with a zero byte. `limit` may be one
    // more than there may be, to see whether there are.
    int read(int descriptor, size_t limit)
    {
        while (size_ < limit) {
            if (size_ == capacity_ && !reserve(std::min(2 * capacity_, limit))) {
                return QvCommonError_OutOfMemory;
            }
            const ssize_t count = ::read(descriptor, pBlock_.get() + size_, std::min(capacity_, limit) - size_);
            if (count == 0) {
                break;
            }
            if (count > 0) {
                size_ += static_cast<size_t>(count);
            } else if (errno != EINTR) {
                return fileStatus(errno, QvCommonError_Read);
            }
        }
        if (size_ > kMost) {
            return QvCommonError_Capacity;
        }
        pBlock_.get()[size_] = '\0';
        // A shorter block is welcome but not needed.
        static_cast<void>(reserve(size_));
        return QvCommonError_Success;
    }

    void moveTo(QvCommonBuffer_t* pBuffer)
    {
        QvCommonBuffer_clear(pBuffer);
        pBuffer->pBegin = pBlock_.release();
        pBuffer->size = size_;
        pBuffer->isAllocated = true;
    }

private:
    struct Free {
        void operator()(char* pBlock) const { std::free(pBlock); }
    };
    std::unique_ptr<char, Free> pBlock_;
    size_t capacity_ = 0;
    size_t size_ = 0;
};

// Moves to byte `offset`. What can't seek is read and dropped up to there.
int skip(int descriptor, size_t offset)
{
    if (offset == 0) {
        return QvCommonError_Success;
    }
    if (offset <= static_cast<size_t>(std::numeric_limits<off_t>::max()) &&
        lseek(descriptor, static_cast<off_t>(offset), SEEK_SET) >= 0) {
        return QvCommonError_Success;
    }
    char dropped[kFirstCapacity];
    size_t number = 0;
    while (number < offset) {
        const ssize_t count = ::read(descriptor, dropped, std::min(offset - number, sizeof(dropped)));
        if (count == 0) {
            break;
        }
        if (count > 0) {
            number += static_cast<size_t>(count);
            if (number > kMost) {
                return QvCommonError_Capacity;
            }
        } else if (errno != EINTR) {
            return fileStatus(errno, QvCommonError_Read);
        }
    }
    return QvCommonError_Success;
}

// The room to begin with: for a regular file all that is asked for and one byte, so that the end shows without growing.
size_t firstCapacity(const struct stat& file, size_t offset, size_t limit)
{
    const auto fileSize = static_cast<size_t>(std::max<off_t>(file.st_size, 0));
    if (!S_ISREG(file.st_mode) || fileSize <= offset) {
        return std::min(limit, kFirstCapacity);
    }
    return std::min(limit, fileSize - offset + 1);
}

int load(const char* pFilename, size_t offset, size_t size, QvCommonBuffer_t* pBuffer)
{
    const FileDescriptor file(::open(pFilename, O_RDONLY | O_CLOEXEC | O_NOCTTY));
    struct stat state = {};
    if (!file.isOpen() || fstat(file.get(), &state) != 0) {
        return fileStatus(errno, QvCommonError_Read);
    }
    if (S_ISDIR(state.st_mode)) {
        return QvCommonError_IsFolder;
    }
    if (const int status = skip(file.get(), offset); status != QvCommonError_Success) {
        return status;
    }
    const size_t limit = size != 0 ? std::min(size, kMost + 1) : kMost + 1;
    if (limit > kMost && S_ISREG(state.st_mode) && state.st_size > 0 && static_cast<size_t>(state.st_size) > offset &&
        static_cast<size_t>(state.st_size) - offset > kMost) {
        return QvCommonError_Capacity; // nor is it read in vain
    }
    Content content;
    if (!content.reserve(firstCapacity(state, offset, limit))) {
        return QvCommonError_OutOfMemory;
    }
    const int status = content.read(file.get(), limit);
    if (status == QvCommonError_Success) {
        content.moveTo(pBuffer);
    }
    return status;
}

} // namespace

int QvCommonBuffer_load2(const char* pFilename, size_t offset, size_t size, QvCommonBuffer_t* pBuffer)
{
    if (pFilename == nullptr || pBuffer == nullptr) {
        return QvCommonError_BadArgument;
    }
    const int status = load(pFilename, offset, size, pBuffer);
    if (status == QvCommonError_Capacity) {
        QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, __FILE__, __LINE__, "QvCommonBuffer_load2");
        std::fprintf(QvCommonTracer_file(hTracer), "%s(%d): more than %zu bytes: %s\n", QvCommonError_text(status),
                     status, kMost, pFilename);
    }
    return status;
}
