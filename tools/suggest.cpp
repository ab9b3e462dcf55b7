#include "suggest.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace qv::tools {
namespace {

/// What a difference costs; one in letter case alone is nearly none.
constexpr std::size_t kStep = 4;

std::size_t costOf(char left, char right)
{
    if (left == right) {
        return 0;
    }
    const bool isSameLetter =
        std::tolower(static_cast<unsigned char>(left)) == std::tolower(static_cast<unsigned char>(right));
    return isSameLetter ? 1 : kStep;
}

/// Steps from one word to the other, where two neighbours that changed places are one step.
std::size_t distance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> before;
    std::vector<std::size_t> last(right.size() + 1);
    for (std::size_t j = 0; j <= right.size(); ++j) {
        last[j] = j * kStep;
    }
    for (std::size_t i = 1; i <= left.size(); ++i) {
        std::vector<std::size_t> row(right.size() + 1);
        row[0] = i * kStep;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            row[j] = std::min({last[j] + kStep, row[j - 1] + kStep, last[j - 1] + costOf(left[i - 1], right[j - 1])});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1]) {
                row[j] = std::min(row[j], before[j - 2] + kStep);
            }
        }
        before.swap(last);
        last.swap(row);
    }
    return last.back();
}

} // namespace

std::string nearest(std::string_view word, const std::vector<std::string>& candidates)
{
    std::size_t least = std::max<std::size_t>(word.size() / 3, 1) * kStep + 1;
    std::string best;
    for (const std::string& candidate : candidates) {
        const bool isBegun = word.size() > 2 && candidate.starts_with(word);
        const std::size_t apart =
            word.size() > candidate.size() ? word.size() - candidate.size() : candidate.size() - word.size();
        if (!isBegun && apart * kStep >= least) {
            continue; // a letter to add or drop for each
        }
        const std::size_t steps = isBegun ? kStep : distance(word, candidate);
        if (steps < least) {
            least = steps;
            best = candidate;
        }
    }
    return best;
}

std::string suggestion(std::string_view word, const std::vector<std::string>& candidates)
{
    const std::string best = nearest(word, candidates);
    return best.empty() ? "" : " (did you mean " + best + "?)";
}

} // namespace qv::tools
