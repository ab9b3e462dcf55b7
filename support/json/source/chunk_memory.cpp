#include "chunk_memory.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace qv::json {

namespace {

size_t aligned(size_t bytes)
{
    return (bytes + kChunkAlignment - 1) / kChunkAlignment * kChunkAlignment;
}

} // namespace

void releaseChunks(Chunk* pChunks)
{
    while (pChunks != nullptr) {
        std::free(std::exchange(pChunks, pChunks->pNext));
    }
}

Chunk* joinChunks(Chunk* pFirst, Chunk* pSecond)
{
    if (pFirst == nullptr) {
        return pSecond;
    }
    Chunk* pLast = pFirst;
    while (pLast->pNext != nullptr) {
        pLast = pLast->pNext;
    }
    pLast->pNext = pSecond;
    return pFirst;
}

void ChunkMemory::keep(char* pEnd)
{
    // The end of a chunk is aligned, too, so this doesn't pass it.
    pTop_ += aligned(static_cast<size_t>(pEnd - pTop_));
}

Chunk* ChunkMemory::giveAway()
{
    pTop_ = nullptr;
    pLimit_ = nullptr;
    return std::exchange(pChunks_, nullptr);
}

void ChunkMemory::addChunk(size_t used, size_t bytes)
{
    // A large chunk is an offer; where there is no memory for it, one that serves the moment is tried.
    const size_t least = aligned(bytes);
    size_t size = std::max(least, aligned(nextSize_));
    auto* pChunk = static_cast<Chunk*>(std::malloc(sizeof(Chunk) + size));
    if (pChunk == nullptr && size > least) {
        size = least;
        pChunk = static_cast<Chunk*>(std::malloc(sizeof(Chunk) + size));
    }
    if (pChunk == nullptr) {
        throw std::bad_alloc();
    }
    auto* pBegin = reinterpret_cast<char*>(pChunk + 1);
    if (used != 0) {
        std::memcpy(pBegin, pTop_, used);
    }
    pChunk->pNext = pChunks_;
    pChunks_ = pChunk;
    pTop_ = pBegin;
    pLimit_ = pBegin + size;
    // Where more is needed than was thought, each chunk is a part of what there is.
    size_ += size;
    nextSize_ = size_ / 4;
}

} // namespace qv::json
