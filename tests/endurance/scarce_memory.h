#pragma once

// An allocator that can be told to refuse. It stands in for that of the whole program, all libraries and the C library
// included, wherever scarce_memory.cpp is linked in.

#include <functional>
#include <string>
#include <vector>

namespace qv::test {

/// Which allocations are refused.
enum class Refuse { OneOnly, AllFromThenOn };

/// What an operation asked for.
struct Demand {
    long asked = 0;   ///< allocations, refused ones too
    long refused = 0; ///< of these
};

/// Runs an operation in a new thread whose allocations succeed `allowed` times before the first is refused. Blocks that
/// it takes are numbered from 0, and known until they are given back, by whatever thread and whenever.
Demand runScarcely(long allowed, Refuse refuse, const std::function<void()>& operation);

/// The numbers of the blocks that the last such operation took and nobody has given back yet.
std::vector<long> keptBlocks();

/// The next operation notes who asks for these blocks, by their numbers in rising order. That is slow.
void noteCallers(const std::vector<long>& numbers);

/// Of these the first of each caller, from whichever line on the stack.
std::vector<long> firstOfEachCaller();

/// Who asked for a block: the exported functions on the stack, innermost first, and the places of the others.
std::string callersOf(long number);

} // namespace qv::test
