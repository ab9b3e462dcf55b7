#include "tree_memory.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace qv::json {

TreeMemory* TreeMemory::make(std::size_t firstBytes)
{
    // It stands at the front of its first chunk.
    std::size_t size = aligned(sizeof(TreeMemory)) + aligned(firstBytes);
    Chunk* pChunk = makeChunk(aligned(sizeof(TreeMemory)), &size);
    if (pChunk == nullptr) {
        return nullptr;
    }
    auto* pMemory = new (pChunk + 1) TreeMemory;
    pMemory->useChunk(pChunk, size);
    pMemory->pTop_ += aligned(sizeof(TreeMemory));
    pMemory->nextSize_ = std::min(size * 2, kLargestStep);
    return pMemory;
}

void TreeMemory::release(TreeMemory* pMemory)
{
    Chunk* pChunk = pMemory->pChunks_;
    while (pChunk != nullptr) {
        std::free(std::exchange(pChunk, pChunk->pNext));
    }
}

/// A large chunk is an offer: where there is no memory for it, one of the least size is tried.
TreeMemory::Chunk* TreeMemory::makeChunk(std::size_t least, std::size_t* pSize)
{
    void* pChunk = std::malloc(sizeof(Chunk) + *pSize);
    if (pChunk == nullptr && *pSize > least) {
        *pSize = least;
        pChunk = std::malloc(sizeof(Chunk) + *pSize);
    }
    return static_cast<Chunk*>(pChunk);
}

void TreeMemory::useChunk(Chunk* pChunk, std::size_t size)
{
    pChunk->pNext = pChunks_;
    pChunks_ = pChunk;
    pTop_ = reinterpret_cast<char*>(pChunk + 1);
    pLimit_ = pTop_ + size;
}

bool TreeMemory::addChunk(std::size_t used, std::size_t bytes)
{
    std::size_t size = std::max(aligned(bytes), aligned(nextSize_));
    Chunk* pChunk = makeChunk(aligned(bytes), &size);
    if (pChunk == nullptr) {
        return false;
    }
    if (used != 0) {
        std::memcpy(pChunk + 1, pTop_, used);
    }
    useChunk(pChunk, size);
    nextSize_ = std::min(size * 2, kLargestStep);
    return true;
}

} // namespace qv::json
