#pragma once

// What qvdb understands, as data: the command line is read by it, and help, man pages and completions are made from it.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "options.h"

namespace qv::tools {

/// Where the value of an option goes; its type says how the option is read.
using OptionTarget = std::variant<bool Options::*, std::string Options::*, std::vector<std::string> Options::*,
                                  std::optional<double> Options::*, std::optional<std::size_t> Options::*>;

/// What a word or a value names, for completions.
enum class Names { Nothing, File, Path, Category, Command, Form, Setting, Finding };

/// One option. Short and long name as they are typed, apart by a comma.
struct Option {
    const char* pNames;
    const char* pValue; ///< what stands for its value in a help text; null for a flag
    const char* pMeaning;
    OptionTarget target;
    const char* pChoices = nullptr; ///< the values there are, apart by '|'; null: any
    Names names = Names::Nothing;
};

/// The words of a command that are no options. The last kind repeats where `mostWords` allows it.
struct Words {
    const char* pUsage; ///< such as "IN... [OUT]"
    std::size_t least;
    std::size_t most;
    Names first = Names::File;
    Names others = Names::File;
    const char* pChoices = nullptr; ///< the words there are, apart by '|'; null: any
};

/// A line of a help text: what one may type, and what it does.
struct Example {
    const char* pLine;
    const char* pMeaning;
};

struct Command {
    const char* pName;
    Words words;
    const char* pSummary;     ///< in a few words
    const char* pDescription; ///< paragraphs, apart by an empty line; lines that begin with a blank stay as they are
    std::span<const Option* const> options;
    std::span<const Example> examples;
    const char* pExit; ///< what each exit status means
    ExitStatus (*pRun)(const Options& options);
};

/// What stands above the commands in the program's own help and man page.
extern const char* const kProgramSummary;
extern const char* const kProgramDescription;
extern const char* const kPathDescription; ///< what a path is
extern const char* const kEnvironment;

constexpr std::size_t kAnyNumber = SIZE_MAX;

std::span<const Command> commands();

/// The command of that name, also one that only completions call; null if there is none.
const Command* findCommand(const std::string& name);

/// The names of an option, or the choices of a value, one by one.
std::vector<std::string> splitAt(std::string_view text, char separator);

/// Help texts as they are printed.
std::string programHelp();
std::string commandHelp(const Command& command);

} // namespace qv::tools
