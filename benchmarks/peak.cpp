// Prints the peak of the heap under a load or a save, in bytes: the most by which the heap in use grows above what it is
// when the work begins.
//
//     qv_peak load FILE
//     qv_peak save FILE OUTPUT      loads FILE first
//
// The heap is counted by standing in front of the C library's allocator, which is why this is a program of its own: where
// times are measured, nobody stands there. What counts is the usable size of each block, whoever asks for it.
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <malloc.h>

#include <qv_common_c/common_tracer.h>
#include <qv_database_c/qv_database.h>

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

int main(int argc, char* argv[])
{
    const bool isSave = argc == 4 && std::strcmp(argv[1], "save") == 0;
    const bool isLoad = argc == 3 && std::strcmp(argv[1], "load") == 0;
    if (!isSave && !isLoad) {
        std::fprintf(stderr, "usage: %s load FILE | save FILE OUTPUT\n", argv[0]);
        return 2;
    }
    QvCommonTracerOpenParam_t tracer{};
    tracer.level = QvCommonTracerLevel_Error;
    QvDatabaseOpenParam_t param{};
    QvDatabaseHandle_t database = 0;
    int status = QvCommonTracer_open(&tracer, &hTracer);
    status = status == 0 ? QvDatabase_open(&param, &database) : status;
    if (status == 0 && isSave) {
        status = QvDatabase_load(database, argv[2]);
    }
    isCounting = true;
    if (status == 0) {
        status = isSave ? QvDatabase_save(database, argv[3]) : QvDatabase_load(database, argv[2]);
    }
    isCounting = false;
    std::printf("%td\n", peak);
    return status;
}
