#pragma once

#include <cstddef>

namespace qv::json {

/// What every piece is aligned to.
constexpr std::size_t kPieceAlignment = 16;

/// Where the parts of a tree lie: a few large chunks, filled from the front and freed together. Pieces are never given
/// back one by one. Nothing here throws.
class TreeMemory {
public:
    /// Its first chunk has room for that many bytes, or fewer where memory is short. Null without any.
    static TreeMemory* make(std::size_t firstBytes);

    /// Frees all chunks, and with them the object itself.
    static void release(TreeMemory* pMemory);

    TreeMemory(const TreeMemory&) = delete;
    TreeMemory& operator=(const TreeMemory&) = delete;

    /// The free room, with at least that many bytes; null without memory.
    char* room(std::size_t bytes)
    {
        if (static_cast<std::size_t>(pLimit_ - pTop_) < bytes) [[unlikely]] {
            return addChunk(0, bytes) ? pTop_ : nullptr;
        }
        return pTop_;
    }
    char* limit() { return pLimit_; }

    /// The same where the room's first `used` bytes are filled already: they move along. That is how a list of unknown
    /// length grows.
    char* moreRoom(std::size_t used, std::size_t bytes) { return addChunk(used, bytes) ? pTop_ : nullptr; }

    /// Ends the use of the room: what stands before pEnd stays.
    void keep(char* pEnd) { pTop_ += aligned(static_cast<std::size_t>(pEnd - pTop_)); }

    /// A new piece; null without memory.
    void* take(std::size_t bytes)
    {
        char* pPiece = room(aligned(bytes));
        if (pPiece != nullptr) {
            pTop_ += aligned(bytes);
        }
        return pPiece;
    }

    /// Makes the newest piece longer or shorter. False if it isn't the newest, or at the end of its chunk.
    bool resize(const void* pPiece, std::size_t oldBytes, std::size_t bytes)
    {
        char* pBegin = pTop_ - aligned(oldBytes);
        if (pPiece != pBegin || static_cast<std::size_t>(pLimit_ - pBegin) < aligned(bytes)) {
            return false;
        }
        pTop_ = pBegin + aligned(bytes);
        return true;
    }

    /// Chunks stop doubling here: what is left of the last one is all that a tree takes too much, and by then their
    /// number costs nothing.
    static constexpr std::size_t kLargestStep = std::size_t{256} * 1024;

    /// How large the next chunk shall be; those behind it double.
    void expect(std::size_t bytes) { nextSize_ = bytes; }

    TreeMemory* pNext = nullptr; // used while trees are released
    bool isCompact = false;      // lists of numbers lie packed

private:
    /// The bytes stand behind it.
    struct alignas(kPieceAlignment) Chunk {
        Chunk* pNext;
    };

    static constexpr std::size_t aligned(std::size_t bytes)
    {
        return (bytes + kPieceAlignment - 1) / kPieceAlignment * kPieceAlignment;
    }

    static Chunk* makeChunk(std::size_t least, std::size_t* pSize);

    TreeMemory() = default;
    bool addChunk(std::size_t used, std::size_t bytes);
    void useChunk(Chunk* pChunk, std::size_t size);

    Chunk* pChunks_ = nullptr;
    char* pTop_ = nullptr;
    char* pLimit_ = nullptr;
    std::size_t nextSize_ = 0;
};

} // namespace qv::json
