// Counts the heap in use by standing in front of the C library's allocator. Only a peak that is being measured counts;
// otherwise a call costs one test more than without, ours and the peers' alike.
#include "measure.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <malloc.h>

// The allocator behind the names that we take.
extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t number, std::size_t size) noexcept;
void* __libc_realloc(void* pBlock, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void* pBlock) noexcept;
}

namespace {

bool isCounting = false;
std::ptrdiff_t inUse = 0; // relative to the begin of the count: what was there before may be freed meanwhile
std::ptrdiff_t peak = 0;

std::ptrdiff_t sizeOf(void* pBlock)
{
    return static_cast<std::ptrdiff_t>(malloc_usable_size(pBlock)); // 0 for null
}

void* taken(void* pBlock)
{
    if (isCounting) {
        inUse += sizeOf(pBlock);
        peak = std::max(peak, inUse);
    }
    return pBlock;
}

} // namespace

// The libraries reach these only if they are visible in the program.
#pragma GCC visibility push(default)
extern "C" {

void* malloc(std::size_t size) noexcept
{
    return taken(__libc_malloc(size));
}

void* calloc(std::size_t number, std::size_t size) noexcept
{
    return taken(__libc_calloc(number, size));
}

void free(void* pBlock) noexcept
{
    if (isCounting) {
        inUse -= sizeOf(pBlock);
    }
    __libc_free(pBlock);
}

void* realloc(void* pBlock, std::size_t size) noexcept
{
    if (!isCounting) {
        return __libc_realloc(pBlock, size);
    }
    const auto before = reinterpret_cast<std::uintptr_t>(pBlock);
    const std::ptrdiff_t old = sizeOf(pBlock);
    void* pNew = __libc_realloc(pBlock, size);
    if (pNew == nullptr && size != 0) {
        return nullptr; // the old block is still there
    }
    // A block that had to move stood beside its copy for a while.
    inUse += sizeOf(pNew);
    const bool hasMoved = reinterpret_cast<std::uintptr_t>(pNew) != before;
    peak = std::max(peak, hasMoved ? inUse : inUse - old);
    inUse -= old;
    return pNew;
}

void* memalign(std::size_t alignment, std::size_t size) noexcept
{
    return taken(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return taken(__libc_memalign(alignment, size));
}

int posix_memalign(void** ppBlock, std::size_t alignment, std::size_t size) noexcept
{
    void* pBlock = taken(__libc_memalign(alignment, size));
    if (pBlock == nullptr) {
        return ENOMEM;
    }
    *ppBlock = pBlock;
    return 0;
}

} // extern "C"
#pragma GCC visibility pop

std::size_t qv::benchmark::peakOf(const Work& work)
{
    inUse = peak = 0;
    isCounting = true;
    work();
    isCounting = false;
    return static_cast<std::size_t>(peak);
}
