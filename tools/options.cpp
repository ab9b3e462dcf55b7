#include "options.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include <CLI/CLI.hpp>

#include "grammar.h"
#include "suggest.h"

namespace qv::tools {
namespace {

std::vector<std::string> commandNames()
{
    std::vector<std::string> names{"help"};
    for (const Command& command : commands()) {
        names.emplace_back(command.pName);
    }
    return names;
}

ExitStatus refuse(const std::string& command, const std::string& what)
{
    std::fprintf(stderr, "qvdb: %s%s; see qvdb %s--help\n", command.empty() ? "" : (command + ": ").c_str(),
                 what.c_str(), command.empty() ? "" : (command + ' ').c_str());
    return kUsageError;
}

ExitStatus printHelp(const Command* pCommand)
{
    std::fputs((pCommand == nullptr ? programHelp() : commandHelp(*pCommand)).c_str(), stdout);
    return kDone;
}

std::optional<ExitStatus> refuseCommand(const std::string& word)
{
    return refuse("", "there is no command " + word + suggestion(word, commandNames()));
}

/// A number without the zeros that would make it an octal one; 0x stays.
std::string withoutZeros(const std::string& text)
{
    const std::size_t first = text.find_first_of("123456789");
    return first != std::string::npos && text.find_first_not_of('0') == first ? text.substr(first) : text;
}

/// What CLI11 reads straight into the options.
void declare(CLI::App& app, const Option& option, Options& options)
{
    CLI::Option* pOption = std::visit(
        [&](auto target) -> CLI::Option* {
            auto& value = options.*target;
            if constexpr (std::is_same_v<decltype(target), bool Options::*>) {
                return app.add_flag(option.pNames, value);
            } else if constexpr (std::is_same_v<decltype(target), std::optional<std::size_t> Options::*>) {
                return app.add_option(option.pNames, value)->expected(1)->transform(&withoutZeros);
            } else {
                return app.add_option(option.pNames, value)->expected(1);
            }
        },
        option.target);
    if (std::holds_alternative<std::vector<std::string> Options::*>(option.target)) {
        pOption->take_all()->expected(1)->allow_extra_args(false); // one value each time it is said
    } else if (option.pValue != nullptr) {
        pOption->take_last();
    }
}

std::vector<std::string> namesOf(const Command& command)
{
    std::vector<std::string> names{"--help"};
    for (const Option* pOption : command.options) {
        for (std::string& name : splitAt(pOption->pNames, ',')) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

/// What is wrong with the values of the options that have a list of them.
std::string wrongChoice(const Command& command, const Options& options)
{
    for (const Option* pOption : command.options) {
        const auto* pTarget = std::get_if<std::string Options::*>(&pOption->target);
        if (pOption->pChoices == nullptr || pTarget == nullptr || (options.**pTarget).empty()) {
            continue;
        }
        const std::vector<std::string> choices = splitAt(pOption->pChoices, '|');
        const std::string& value = options.**pTarget;
        if (std::find(choices.begin(), choices.end(), value) == choices.end()) {
            return splitAt(pOption->pNames, ',').back() + " is one of " + pOption->pChoices + ", not " + value +
                   suggestion(value, choices);
        }
    }
    return "";
}

const Option* findOption(const Command& command, const std::string& name)
{
    for (const Option* pOption : command.options) {
        const std::vector<std::string> names = splitAt(pOption->pNames, ',');
        if (std::find(names.begin(), names.end(), name) != names.end()) {
            return pOption;
        }
    }
    return nullptr;
}

/// What CLI11 says of a value that is missing or of another kind, in our words: it begins with the option's name.
std::string wordsOf(const Command& command, std::string error)
{
    constexpr std::string_view kConversion = "Could not convert: ";
    const bool isConversion = error.starts_with(kConversion);
    error.erase(0, isConversion ? kConversion.size() : 0);
    const std::size_t end = error.find_first_of(": ");
    const Option* pOption = findOption(command, error.substr(0, end));
    if (pOption == nullptr || pOption->pValue == nullptr) {
        return error;
    }
    const std::size_t value = error.find(" = ");
    return error.substr(0, end) + " wants " + (isConversion ? "a number" : pOption->pValue) +
           (isConversion && value != std::string::npos ? ", not " + error.substr(value + 3) : " behind it");
}

/// The words of a command behind its name.
std::optional<ExitStatus> readWords(const Command& command, int argc, char* argv[], Options& options)
{
    CLI::App app;
    app.set_help_flag();
    bool wantsHelp = false;
    app.add_flag("-h,--help", wantsHelp);
    app.add_option("words", options.words);
    app.allow_extras();
    for (const Option* pOption : command.options) {
        declare(app, *pOption, options);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return refuse(command.pName, wordsOf(command, error.what()));
    }
    if (wantsHelp) {
        return printHelp(&command);
    }
    for (const std::string& extra : app.remaining()) {
        if (extra != "--") {                        // what stands behind that has gone to the words
            const bool isShort = extra.size() <= 2; // every other letter is near
            return refuse(command.pName,
                          "unknown option " + extra + (isShort ? "" : suggestion(extra, namesOf(command))));
        }
    }
    if (const std::string wrong = wrongChoice(command, options); !wrong.empty()) {
        return refuse(command.pName, wrong);
    }
    if (options.words.size() < command.words.least) {
        return refuse(command.pName, "wants " + std::string(command.words.pUsage) + ", and " +
                                         (options.words.empty() ? "nothing" : options.words.back()) +
                                         (options.words.empty() ? " was given" : " is the last word"));
    }
    if (options.words.size() > command.words.most) {
        return refuse(command.pName, "wants " + std::string(command.words.pUsage) + "; " +
                                         options.words[command.words.most] + " is one word too many");
    }
    return std::nullopt;
}

} // namespace

std::optional<ExitStatus> readOptions(int argc, char* argv[], Options& options)
{
    const std::string word = argc > 1 ? argv[1] : "";
    if (word.empty()) {
        return refuse("", "what to do is missing, such as check or convert");
    }
    if (word == "--version" || word == "-V") {
        std::printf("qvdb %s\n", QV_VERSION);
        return kDone;
    }
    if (word == "--help" || word == "-h" || word == "help") {
        if (argc <= 2) {
            return printHelp(nullptr);
        }
        const Command* pCommand = findCommand(argv[2]);
        return pCommand != nullptr ? printHelp(pCommand) : refuseCommand(argv[2]);
    }
    if (word.starts_with('-') && word.size() > 1) {
        return refuse("", "the command comes first, before " + word);
    }
    options.pCommand = findCommand(word);
    if (options.pCommand == nullptr) {
        return refuseCommand(word);
    }
    return readWords(*options.pCommand, argc - 1, argv + 1, options);
}

ExitStatus refuseUsage(const Options& options, const std::string& what)
{
    return refuse(options.pCommand->pName, what);
}

} // namespace qv::tools
