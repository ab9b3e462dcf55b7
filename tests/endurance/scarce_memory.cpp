#include "endurance/scarce_memory.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <execinfo.h>
#include <set>
#include <thread>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t number, size_t size);
void* __libc_realloc(void* pBlock, size_t size);
void* __libc_memalign(size_t alignment, size_t size);
void __libc_free(void* pBlock);
}

namespace {

using namespace qv::test;

// What the calling thread has left; without a limit, and unnoted, until it is set.
constinit thread_local bool isLimited = false;
constinit thread_local long allowed = 0;
constinit thread_local Refuse refusal = Refuse::OneOnly;
constinit thread_local Demand demand;

struct Noted {
    const void* pBlock;
    long number; // negative when it was given back
};

// The blocks that the operation took. One thread runs it, and threads that give back later come after it.
constexpr unsigned kPlaceBits = 17;
constexpr std::size_t kPlaces = std::size_t{1} << kPlaceBits;
constinit std::array<Noted, kPlaces> noted{};
constinit std::size_t notedNumber = 0;

struct Callers {
    long number;
    int depth;
    std::array<void*, 48> frames;
};
constinit std::array<Callers, 8192> callers{}; // by number
constinit std::size_t callersNumber = 0;

Noted* placeOf(const void* pBlock)
{
    const std::uint64_t hash = (reinterpret_cast<std::uintptr_t>(pBlock) >> 4U) * 0x9E3779B97F4A7C15U;
    auto at = static_cast<std::size_t>(hash >> (64U - kPlaceBits));
    while (noted[at].pBlock != nullptr && noted[at].pBlock != pBlock) {
        at = (at + 1) % kPlaces;
    }
    return &noted[at];
}

Callers* callersAt(long number)
{
    Callers* const pEnd = callers.data() + callersNumber;
    Callers* pFound =
        std::lower_bound(callers.data(), pEnd, number, [](const Callers& row, long n) { return row.number < n; });
    return pFound != pEnd && pFound->number == number ? pFound : nullptr;
}

bool isRefused()
{
    if (!isLimited) {
        return false;
    }
    const long number = demand.asked++;
    if (number < allowed || (refusal == Refuse::OneOnly && number > allowed)) {
        return false;
    }
    ++demand.refused;
    errno = ENOMEM;
    return true;
}

void noteStack(long number)
{
    Callers* pCallers = callersAt(number);
    if (pCallers != nullptr) {
        isLimited = false; // the first look at a stack takes memory of its own
        pCallers->depth = backtrace(pCallers->frames.data(), static_cast<int>(pCallers->frames.size()));
        isLimited = true;
    }
}

void* taken(void* pBlock)
{
    if (isLimited && pBlock != nullptr) {
        const long number = demand.asked - 1;
        Noted* pNoted = placeOf(pBlock);
        notedNumber += pNoted->pBlock == nullptr ? 1U : 0U;
        if (notedNumber > kPlaces / 2) {
            std::abort(); // an operation that takes more blocks at a time needs more places
        }
        *pNoted = {pBlock, number};
        noteStack(number);
    }
    return pBlock;
}

void given(const void* pBlock)
{
    if (notedNumber != 0 && pBlock != nullptr) {
        placeOf(pBlock)->number = -1;
    }
}

} // namespace

#define QV_OVERRIDE extern "C" [[gnu::visibility("default")]]

QV_OVERRIDE void* malloc(size_t size) noexcept
{
    return isRefused() ? nullptr : taken(__libc_malloc(size));
}

QV_OVERRIDE void* calloc(size_t number, size_t size) noexcept
{
    return isRefused() ? nullptr : taken(__libc_calloc(number, size));
}

QV_OVERRIDE void* realloc(void* pBlock, size_t size) noexcept
{
    if (isRefused()) {
        return nullptr;
    }
    void* pNew = __libc_realloc(pBlock, size);
    if (pNew != nullptr || size == 0) {
        given(pBlock);
    }
    return taken(pNew);
}

QV_OVERRIDE void* memalign(size_t alignment, size_t size) noexcept
{
    return isRefused() ? nullptr : taken(__libc_memalign(alignment, size));
}

QV_OVERRIDE void* aligned_alloc(size_t alignment, size_t size) noexcept
{
    return memalign(alignment, size);
}

QV_OVERRIDE int posix_memalign(void** ppBlock, size_t alignment, size_t size) noexcept
{
    void* pBlock = memalign(alignment, size);
    if (pBlock == nullptr) {
        return ENOMEM;
    }
    *ppBlock = pBlock;
    return 0;
}

QV_OVERRIDE void free(void* pBlock) noexcept
{
    given(pBlock);
    __libc_free(pBlock);
}

namespace qv::test {

Demand runScarcely(long limit, Refuse refuse, const std::function<void()>& operation)
{
    Demand result;
    if (notedNumber != 0) {
        noted.fill({});
        notedNumber = 0;
    }
    std::thread([&] {
        allowed = limit;
        refusal = refuse;
        demand = {};
        isLimited = true;
        operation();
        isLimited = false;
        result = demand;
    }).join();
    return result;
}

std::vector<long> keptBlocks()
{
    std::vector<long> numbers;
    for (const Noted& block : noted) {
        if (block.pBlock != nullptr && block.number >= 0) {
            numbers.push_back(block.number);
        }
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

void noteCallers(const std::vector<long>& numbers)
{
    callersNumber = std::min(numbers.size(), callers.size());
    for (std::size_t i = 0; i < callersNumber; ++i) {
        callers[i] = {numbers[i], 0, {}};
    }
}

std::vector<long> firstOfEachCaller()
{
    std::set<std::vector<void*>> known;
    std::vector<long> numbers;
    for (std::size_t i = 0; i < callersNumber; ++i) {
        const auto begin = callers[i].frames.begin();
        if (known.emplace(begin, begin + callers[i].depth).second) {
            numbers.push_back(callers[i].number);
        }
    }
    return numbers;
}

std::string callersOf(long number)
{
    std::string text;
    const Callers* pCallers = callersAt(number);
    for (int i = 0; pCallers != nullptr && i < pCallers->depth; ++i) {
        Dl_info info{};
        char* pAddress = static_cast<char*>(pCallers->frames[static_cast<std::size_t>(i)]) - 1;
        if (dladdr(pAddress, &info) == 0 || info.dli_fname == nullptr) {
            continue;
        }
        if (info.dli_sname != nullptr) {
            text += std::string(info.dli_sname) + " ";
            continue;
        }
        const std::string library = info.dli_fname;
        std::array<char, 32> offset{};
        std::snprintf(offset.data(), offset.size(), "+0x%tx ", pAddress - static_cast<char*>(info.dli_fbase));
        text += library.substr(library.rfind('/') + 1) + offset.data();
    }
    return text;
}

} // namespace qv::test
