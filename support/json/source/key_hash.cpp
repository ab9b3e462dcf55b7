#include "key_hash.h"

#include <array>
#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <sys/random.h>

#include "text_bytes.h"

namespace qv::json {

namespace {

/// SipHash-1-3, which is made for tables with keys from strangers.
class SipHash {
public:
    explicit SipHash(const std::array<uint64_t, 2>& seed)
        : a_(seed[0] ^ 0x736F6D6570736575), b_(seed[1] ^ 0x646F72616E646F6D), c_(seed[0] ^ 0x6C7967656E657261),
          d_(seed[1] ^ 0x7465646279746573)
    {
    }

    void add(uint64_t word)
    {
        d_ ^= word;
        mix();
        a_ ^= word;
    }

    uint64_t finish()
    {
        c_ ^= 0xFF;
        for (int round = 0; round < 3; ++round) {
            mix();
        }
        return a_ ^ b_ ^ c_ ^ d_;
    }

private:
    void mix()
    {
        a_ += b_;
        b_ = std::rotl(b_, 13) ^ a_;
        a_ = std::rotl(a_, 32);
        c_ += d_;
        d_ = std::rotl(d_, 16) ^ c_;
        a_ += d_;
        d_ = std::rotl(d_, 21) ^ a_;
        c_ += b_;
        b_ = std::rotl(b_, 17) ^ c_;
        c_ = std::rotl(c_, 32);
    }

    uint64_t a_;
    uint64_t b_;
    uint64_t c_;
    uint64_t d_;
};

std::array<uint64_t, 2> makeSeed()
{
    std::array<uint64_t, 2> seed = {};
    const int error = errno;
    if (getrandom(seed.data(), sizeof(seed), GRND_NONBLOCK) != static_cast<ssize_t>(sizeof(seed))) {
        // Early in a system's start there is no better: when it is, and where the system has put us.
        timespec now = {};
        clock_gettime(CLOCK_MONOTONIC, &now);
        seed = {static_cast<uint64_t>(now.tv_nsec) << 32 ^ static_cast<uint64_t>(now.tv_sec),
                reinterpret_cast<uintptr_t>(&now)};
    }
    errno = error;
    return seed;
}

} // namespace

std::size_t hashOfKey(std::string_view key)
{
    static const std::array<uint64_t, 2> seed = makeSeed();
    SipHash hash(seed);
    const std::size_t length = key.size();
    while (key.size() >= 8) {
        hash.add(loadEight(key.data()));
        key.remove_prefix(8);
    }
    std::array<char, 8> rest = {};
    key.copy(rest.data(), key.size());
    hash.add(loadEight(rest.data()) | static_cast<uint64_t>(length) << 56);
    return static_cast<std::size_t>(hash.finish());
}

} // namespace qv::json
