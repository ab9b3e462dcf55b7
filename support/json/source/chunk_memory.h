#pragma once

#include <cstddef>

// Memory of trees that were read: a few large chunks, filled from the front and freed together.
namespace qv::json {

// What everything in a chunk is aligned to.
constexpr size_t kChunkAlignment = 16;

// The bytes stand behind it.
struct alignas(kChunkAlignment) Chunk {
    Chunk* pNext;
};

void releaseChunks(Chunk* pChunks);

// Puts the chunks of one list in front of another. Returns the whole list.
Chunk* joinChunks(Chunk* pFirst, Chunk* pSecond);

// Chunks that are being filled. Throws std::bad_alloc.
class ChunkMemory {
public:
    // How much will be needed in all, as far as can be told.
    explicit ChunkMemory(size_t expectedBytes) : nextSize_(expectedBytes) {}
    ~ChunkMemory() { releaseChunks(pChunks_); }
    ChunkMemory(const ChunkMemory&) = delete;
    ChunkMemory& operator=(const ChunkMemory&) = delete;

    // The free room, with at least that many bytes.
    char* room(size_t bytes)
    {
        if (static_cast<size_t>(pLimit_ - pTop_) < bytes) [[unlikely]] {
            addChunk(0, bytes);
        }
        return pTop_;
    }
    char* limit() { return pLimit_; }

    // The same where the room's first `used` bytes are filled already: they move along. That is how a list of unknown
    // length grows.
    char* moreRoom(size_t used, size_t bytes)
    {
        addChunk(used, bytes);
        return pTop_;
    }

    // Ends the use of the room: what stands before pEnd stays.
    void keep(char* pEnd);

    // The chunks are the caller's now.
    Chunk* giveAway();

private:
    void addChunk(size_t used, size_t bytes);

    Chunk* pChunks_ = nullptr;
    char* pTop_ = nullptr;
    char* pLimit_ = nullptr;
    size_t nextSize_;
    size_t size_ = 0; // of all chunks
};

} // namespace qv::json
