#include "measure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <stdexcept>

namespace qv::benchmark {
namespace {

constexpr int kRounds = 10;   // even: either comes first as often as the other
constexpr double kSpan = 2e6; // nanoseconds that a turn takes at least

double timeOf(const Work& work, std::size_t repeats)
{
    const double begin = now();
    for (std::size_t i = 0; i < repeats; ++i) {
        work();
    }
    return (now() - begin) / static_cast<double>(repeats);
}

/// How often the work is done in a turn; finding that out warms it up.
std::size_t repeatsOf(const Work& work)
{
    work();
    std::size_t repeats = 1;
    while (timeOf(work, repeats) * static_cast<double>(repeats) < kSpan) {
        repeats *= 2;
    }
    return repeats;
}

/// The ratio, or what else `value` takes of a round, that a share of all rounds lies below.
template <class Value>
double quantile(const std::vector<Round>& rounds, double share, Value value)
{
    std::vector<double> values(rounds.size());
    std::transform(rounds.begin(), rounds.end(), values.begin(), value);
    const auto place = std::lround(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + place, values.end());
    return values[static_cast<std::size_t>(place)];
}

double ratio(const Round& round)
{
    return round.ours / round.peer;
}

template <class Rows>
auto& findOrAdd(Rows& rows, const auto& isWanted, const auto& make)
{
    const auto found = std::find_if(rows.begin(), rows.end(), isWanted);
    return found != rows.end() ? *found : rows.emplace_back(make());
}

} // namespace

void fail(const std::string& what)
{
    throw std::runtime_error(what + " failed");
}

double now()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

std::vector<Round> compare(const Work& ours, const Work& peer)
{
    const std::size_t oursRepeats = repeatsOf(ours);
    const std::size_t peerRepeats = repeatsOf(peer);
    std::vector<Round> rounds(kRounds);
    bool isOursFirst = true;
    for (Round& round : rounds) {
        if (isOursFirst) {
            round.ours = timeOf(ours, oursRepeats);
            round.peer = timeOf(peer, peerRepeats);
        } else { // whoever comes second finds the caches as the first one left them, so they change places
            round.peer = timeOf(peer, peerRepeats);
            round.ours = timeOf(ours, oursRepeats);
        }
        isOursFirst = !isOursFirst;
    }
    return rounds;
}

void Report::add(const std::string& work, const std::string& against, double goal, const std::string& document,
                 const std::vector<Round>& rounds)
{
    Row& row = findOrAdd(
        rows_, [&](const Row& other) { return other.work == work && other.against == against; },
        [&] {
            return Row{work, against, goal, {}};
        });
    Cell& cell = findOrAdd(
        row.cells, [&](const Cell& other) { return other.document == document; },
        [&] {
            return Cell{document, {}};
        });
    cell.rounds.insert(cell.rounds.end(), rounds.begin(), rounds.end());
}

void Report::print() const
{
    std::printf("| work | against |");
    std::string line = "|---|---|";
    for (const Cell& cell : rows_.front().cells) {
        std::printf(" %s |", cell.document.c_str());
        line += "---|";
    }
    std::printf(" goal | met |\n%s---|---|\n", line.c_str());
    for (const Row& row : rows_) {
        print(row);
    }
}

void Report::print(const Row& row)
{
    std::printf("| %s | %s |", row.work.c_str(), row.against.c_str());
    bool isMet = true;
    for (const Cell& cell : row.cells) {
        const double median = quantile(cell.rounds, 0.5, ratio);
        std::printf(" %.2f", median);
        if (cell.rounds.size() > 1) {
            std::printf(" (%.2f to %.2f)", quantile(cell.rounds, 0.25, ratio), quantile(cell.rounds, 0.75, ratio));
        }
        std::printf(" |");
        isMet = isMet && median <= row.goal;
    }
    std::printf(" %g | %s |\n", row.goal, isMet ? "yes" : "no");
}

void Report::writeJson(const std::string& filename) const
{
    std::FILE* pFile = std::fopen(filename.c_str(), "w");
    check(pFile != nullptr, filename);
    const char* pSeparator = "[\n";
    for (const Row& row : rows_) {
        for (const Cell& cell : row.cells) {
            std::fprintf(pFile, "%s{\"work\": \"%s\", \"against\": \"%s\", \"document\": \"%s\", \"goal\": %g, ",
                         pSeparator, row.work.c_str(), row.against.c_str(), cell.document.c_str(), row.goal);
            std::fprintf(pFile, "\"lower\": %.4f, \"median\": %.4f, \"upper\": %.4f, \"ours\": %.0f, \"peer\": %.0f}",
                         quantile(cell.rounds, 0.25, ratio), quantile(cell.rounds, 0.5, ratio),
                         quantile(cell.rounds, 0.75, ratio), quantile(cell.rounds, 0.5, std::mem_fn(&Round::ours)),
                         quantile(cell.rounds, 0.5, std::mem_fn(&Round::peer)));
            pSeparator = ",\n";
        }
    }
    std::fprintf(pFile, "\n]\n");
    check(std::fclose(pFile) == 0, filename);
}

} // namespace qv::benchmark
