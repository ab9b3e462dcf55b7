#pragma once

#include <utility>

namespace qv::common {

/// Owns an open file descriptor.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() { close(); }

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// false: the system reports that something written before did not arrive.
    bool close();

private:
    int descriptor_;
};

/// The status for a failed file operation, from its errno; `other` where the number says nothing in particular.
int fileStatus(int error, int other);

} // namespace qv::common
