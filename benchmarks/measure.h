// Ratios of two pieces of work, the peak of the heap under one, and the table that they are shown in.
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

/// Our time in parts of the peer's, over all rounds of a comparison.
struct Ratio {
    double lower = 0; ///< a quarter of the rounds lies below
    double median = 0;
    double upper = 0; ///< a quarter lies above
    double ours = 0;  ///< median time of one run, in nanoseconds; bytes where memory is compared
    double peer = 0;
};

/// Runs the two in turns, each often enough in a row for the clock, and compares them round by round. What disturbs the
/// machine for longer than a round disturbs both.
Ratio compare(const Work& ours, const Work& peer);

/// The most by which the heap in use grows above what it is at the beginning, in bytes. What counts is the usable size of
/// each block of the malloc family, whoever asks for it; see heap.cpp.
std::size_t peakOf(const Work& work);

/// The table: a row for a piece of work and what it stands against, a column for a document.
class Report {
public:
    void add(const std::string& work, const std::string& against, double goal, const std::string& document,
             const Ratio& ratio);
    /// As above for a size in parts of another, which has no spread.
    void add(const std::string& work, const std::string& against, double goal, const std::string& document,
             std::size_t ours, std::size_t other);
    void print() const;
    /// The rows for a program: an array of objects.
    void writeJson(const std::string& filename) const;

private:
    struct Cell {
        std::string document;
        Ratio ratio;
    };
    struct Row {
        std::string work;
        std::string against;
        double goal = 0;
        std::vector<Cell> cells;
    };
    Row& row(const std::string& work, const std::string& against, double goal);

    std::vector<Row> rows_;
};

} // namespace qv::benchmark
