#include "measure.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <utility>

namespace qv::benchmark {
namespace {

constexpr int kRounds = 41;
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

double quantile(std::vector<double>& values, double share)
{
    const auto place = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1) + 0.5);
    std::nth_element(values.begin(), values.begin() + place, values.end());
    return values[static_cast<std::size_t>(place)];
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

Ratio compare(const Work& ours, const Work& peer)
{
    const std::size_t oursRepeats = repeatsOf(ours);
    const std::size_t peerRepeats = repeatsOf(peer);
    std::vector<double> oursTimes;
    std::vector<double> peerTimes;
    std::vector<double> ratios;
    for (int round = 0; round < kRounds; ++round) {
        double oursTime = 0;
        double peerTime = 0;
        if (round % 2 == 0) {
            oursTime = timeOf(ours, oursRepeats);
            peerTime = timeOf(peer, peerRepeats);
        } else { // whoever comes second finds the caches as the first one left them, so they change places
            peerTime = timeOf(peer, peerRepeats);
            oursTime = timeOf(ours, oursRepeats);
        }
        oursTimes.push_back(oursTime);
        peerTimes.push_back(peerTime);
        ratios.push_back(oursTime / peerTime);
    }
    return {quantile(ratios, 0.25), quantile(ratios, 0.5), quantile(ratios, 0.75), quantile(oursTimes, 0.5),
            quantile(peerTimes, 0.5)};
}

Report::Row& Report::row(const std::string& work, const std::string& against, double goal)
{
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const Row& row) { return row.work == work && row.against == against; });
    if (found != rows_.end()) {
        return *found;
    }
    rows_.push_back({work, against, goal, {}});
    return rows_.back();
}

void Report::add(const std::string& work, const std::string& against, double goal, const std::string& document,
                 const Ratio& ratio)
{
    row(work, against, goal).cells.push_back({document, ratio});
    std::fprintf(stderr, "%s / %s, %s: %.3f\n", work.c_str(), against.c_str(), document.c_str(), ratio.median);
}

void Report::add(const std::string& work, const std::string& against, double goal, const std::string& document,
                 std::size_t ours, std::size_t other)
{
    const auto part = static_cast<double>(ours) / static_cast<double>(other);
    add(work, against, goal, document, {part, part, part, static_cast<double>(ours), static_cast<double>(other)});
}

void Report::print() const
{
    std::printf("| work | against |");
    for (const Cell& cell : rows_.front().cells) {
        std::printf(" %s |", cell.document.c_str());
    }
    std::printf(" goal | met |\n|---|---|");
    for (std::size_t i = 0; i < rows_.front().cells.size(); ++i) {
        std::printf("---|");
    }
    std::printf("---|---|\n");
    for (const Row& row : rows_) {
        std::printf("| %s | %s |", row.work.c_str(), row.against.c_str());
        bool isMet = true;
        for (const Cell& cell : row.cells) {
            const Ratio& ratio = cell.ratio;
            std::printf(" %.2f", ratio.median);
            if (ratio.lower < ratio.upper) {
                std::printf(" (%.2f to %.2f)", ratio.lower, ratio.upper);
            }
            std::printf(" |");
            isMet = isMet && ratio.median <= row.goal;
        }
        std::printf(" %g | %s |\n", row.goal, isMet ? "yes" : "no");
    }
}

void Report::writeJson(const std::string& filename) const
{
    std::FILE* pFile = std::fopen(filename.c_str(), "w");
    check(pFile != nullptr, filename);
    const char* pSeparator = "[\n";
    for (const Row& row : rows_) {
        for (const Cell& cell : row.cells) {
            const Ratio& ratio = cell.ratio;
            std::fprintf(
                pFile,
                "%s{\"work\": \"%s\", \"against\": \"%s\", \"document\": \"%s\", \"goal\": %g, \"lower\": %.4f, "
                "\"median\": %.4f, \"upper\": %.4f, \"ours\": %.0f, \"peer\": %.0f}",
                pSeparator, row.work.c_str(), row.against.c_str(), cell.document.c_str(), row.goal, ratio.lower,
                ratio.median, ratio.upper, ratio.ours, ratio.peer);
            pSeparator = ",\n";
        }
    }
    std::fprintf(pFile, "\n]\n");
    check(std::fclose(pFile) == 0, filename);
}

} // namespace qv::benchmark
