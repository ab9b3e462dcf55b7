// Two pieces of work measured in turns, and the table that their ratios are shown in.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace qv::benchmark {

using Work = std::function<void()>;

/// Throws where a piece of work went wrong: the time of something that failed says nothing.
[[noreturn]] void fail(const std::string& what);

inline void check(bool isGood, const char* pWhat)
{
    if (!isGood) {
        fail(pWhat);
    }
}

inline void check(bool isGood, const std::string& what)
{
    if (!isGood) {
        fail(what);
    }
}

/// Makes the compiler believe that the value is used.
template <class T>
void keep(const T& value)
{
    asm volatile("" : : "r"(&value) : "memory");
}

/// Processor time of this thread, in nanoseconds: what other programs on the machine take doesn't count, but for the
/// caches and clock rate that they share with us.
double now();

/// Our time and the peer's for one run of their work, from turns that followed each other.
struct Round {
    double ours = 0; ///< nanoseconds; or bytes, where memory is compared
    double peer = 0;
};

/// Runs the two in turns, each often enough in a row for the clock. What disturbs the machine for longer than a round
/// disturbs both.
std::vector<Round> compare(const Work& ours, const Work& peer);

/// The table: a row for a piece of work and what it stands against, a column for a document.
class Report {
public:
    /// Adds rounds to those of an earlier pass.
    void add(const std::string& work, const std::string& against, double goal, const std::string& document,
             const std::vector<Round>& rounds);
    void print() const;
    /// The rows for a program: an array of objects.
    void writeJson(const std::string& filename) const;

private:
    struct Cell {
        std::string document;
        std::vector<Round> rounds;
    };
    struct Row {
        std::string work;
        std::string against;
        double goal = 0;
        std::vector<Cell> cells;
    };
    static void print(const Row& row);

    std::vector<Row> rows_;
};

} // namespace qv::benchmark
