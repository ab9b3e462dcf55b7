#pragma once

// The words of a command line.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace qv::tools {

enum ExitStatus { kDone = 0, kRefused = 1, kUsageError = 2 };

/// `check` and `diff` answer as `cmp` does: done is clean or same, and the two others are these.
constexpr ExitStatus kFound = kRefused;
constexpr ExitStatus kTrouble = kUsageError;

struct Command;

/// What a command was given. Which options a command takes is said in its row of the grammar.
struct Options {
    const Command* pCommand = nullptr;
    std::vector<std::string> words; ///< all but options: files, paths, settings

    bool isVerbose = false;
    bool isQuiet = false;
    bool isForced = false;
    bool asJson = false;
    bool isStrict = false;
    bool showsMissing = false;
    bool showsAll = false;
    bool isExact = false;
    bool showsStatistics = false;
    bool explains = false;

    std::string output;        ///< -o
    std::string from;          ///< form of what is read: json, ini, image; empty: by the name
    std::string to;            ///< form of what is written
    std::string protocol;      ///< JSON form to write: simulator or standard; empty: standard
    std::string names;         ///< whose names paths have: simulator; empty: the tuning document's
    std::string interpolation; ///< linear or nearest; empty: none
    std::vector<std::string> categories;
    std::vector<std::string> disabled;
    std::vector<std::string> keys; ///< PATH=KEY, lists of a plain calibration text
    std::optional<double> tolerance;
    std::optional<double> gain;
    std::optional<std::size_t> offset;
};

/// Reads a command line. A status that is set ends the program: help has been printed, or the one line that says what
/// is wrong.
std::optional<ExitStatus> readOptions(int argc, char* argv[], Options& options);

/// Says in one line what is wrong with the words of a command, and where its help is.
ExitStatus refuseUsage(const Options& options, const std::string& what);

} // namespace qv::tools
