#include "completions.h"

#include <variant>
#include <vector>

#include "grammar.h"

namespace qv::tools {
namespace {

std::string joined(const std::vector<std::string>& parts, const char* pSeparator)
{
    std::string text;
    for (const std::string& part : parts) {
        text += (text.empty() ? "" : pSeparator) + part;
    }
    return text;
}

std::vector<std::string> optionNames(const Command& command, bool onlyWithValue)
{
    std::vector<std::string> names;
    for (const Option* pOption : command.options) {
        if (pOption->pValue != nullptr || !onlyWithValue) {
            for (std::string& name : splitAt(pOption->pNames, ',')) {
                names.push_back(std::move(name));
            }
        }
    }
    if (!onlyWithValue) {
        names.emplace_back("-h");
        names.emplace_back("--help");
    }
    return names;
}

std::string commandNames()
{
    std::vector<std::string> names;
    for (const Command& command : commands()) {
        names.emplace_back(command.pName);
    }
    return joined(names, " ");
}

/// What a shell function is called with to complete a word: a kind, and the choices where there are some.
std::string completionOf(Names names, const char* pChoices)
{
    if (pChoices != nullptr) {
        return "choice " + joined(splitAt(pChoices, '|'), " ");
    }
    switch (names) {
    case Names::File:
        return "file";
    case Names::Path:
        return "path";
    case Names::Setting:
        return "setting";
    case Names::Category:
        return "category";
    case Names::Finding:
        return "finding";
    case Names::Command:
    case Names::Form:
    case Names::Nothing:
        break;
    }
    return "nothing";
}

/// One line a place of a command line: what may stand there.
std::string bashCases()
{
    std::string text;
    for (const Command& command : commands()) {
        const std::string name = command.pName;
        for (const Option* pOption : command.options) {
            if (pOption->pValue != nullptr) {
                const std::vector<std::string> names = splitAt(pOption->pNames, ',');
                text += "    " + name + ',' + joined(names, (" | " + name + ',').c_str()) + ") _qvdb_complete " +
                        completionOf(pOption->names, pOption->pChoices) + " ;;\n";
            }
        }
        text += "    " + name + ",option) _qvdb_complete choice " + joined(optionNames(command, false), " ") + " ;;\n";
        text +=
            "    " + name + ",0) _qvdb_complete " + completionOf(command.words.first, command.words.pChoices) + " ;;\n";
        if (command.words.most > 1) {
            text += "    " + name + ",[1-9]*) _qvdb_complete " +
                    completionOf(command.words.others, command.words.pChoices) + " ;;\n";
        }
    }
    return text;
}

/// Which options are followed by a value, so that it isn't counted as a word.
std::string bashValued()
{
    std::string text;
    for (const Command& command : commands()) {
        const std::vector<std::string> names = optionNames(command, true);
        if (!names.empty()) {
            const std::string name = std::string(command.pName) + ',';
            text += (text.empty() ? "" : " | ") + name + joined(names, (" | " + name).c_str());
        }
    }
    return text;
}

/// A text between single quotes.
std::string shellText(std::string_view text)
{
    std::string quoted = "'";
    for (const char character : text) {
        quoted += character == '\'' ? "'\\''" : std::string(1, character);
    }
    return quoted + '\'';
}

/// A text in what zsh is told of an argument, where brackets and colons end a part.
std::string zshText(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        if (character == '[' || character == ']' || character == ':' || character == '\\') {
            escaped += '\\';
        }
        escaped += character;
    }
    return escaped;
}

std::string zshAction(Names names, const char* pChoices)
{
    if (pChoices != nullptr) {
        return '(' + joined(splitAt(pChoices, '|'), " ") + ')';
    }
    switch (names) {
    case Names::File:
        return "_files";
    case Names::Path:
        return " _qvdb_path path";
    case Names::Setting:
        return " _qvdb_path setting";
    case Names::Category:
        return " _qvdb_path category";
    case Names::Finding:
        return " _qvdb_path finding";
    case Names::Command:
    case Names::Form:
    case Names::Nothing:
        break;
    }
    return " ";
}

std::string zshCommand(const Command& command)
{
    std::string text = std::string("    (") + command.pName + ")\n        _arguments -s";
    for (const Option* pOption : command.options) {
        const bool isRepeated = std::holds_alternative<std::vector<std::string> Options::*>(pOption->target);
        const std::vector<std::string> names = splitAt(pOption->pNames, ',');
        for (const std::string& name : names) {
            const std::string others = names.size() > 1 && !isRepeated ? '(' + joined(names, " ") + ')' : "";
            std::string argument = (isRepeated ? "*" : others) + name + '[' + zshText(pOption->pMeaning) + ']';
            if (pOption->pValue != nullptr) {
                argument += ':' + zshText(pOption->pValue) + ':' + zshAction(pOption->names, pOption->pChoices);
            }
            text += " \\\n            " + shellText(argument);
        }
    }
    text += " \\\n            '(-h --help)'{-h,--help}'[prints help]'";
    const Words& words = command.words;
    if (words.most > 0) {
        text += " \\\n            " + shellText("1: :" + zshAction(words.first, words.pChoices));
    }
    if (words.most > 1) {
        text += " \\\n            " + shellText("*: :" + zshAction(words.others, words.pChoices));
    }
    return text + "\n        ;;\n";
}

} // namespace

std::string bashCompletion()
{
    return "# Completion of qvdb for bash, made from the grammar of the program.\n\n"
           "# What begins like the word at hand, by the kind of the word.\n"
           "_qvdb_complete() {\n"
           "    local kind=$1 names=()\n"
           "    shift\n"
           "    case $kind in\n"
           "    choice) mapfile -t COMPREPLY < <(compgen -W \"$*\" -- \"$word\") ;;\n"
           "    file)\n"
           "        mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
           "        compopt -o filenames 2>/dev/null\n"
           "        ;;\n"
           "    path | setting | category | finding)\n"
           "        [[ \" ${COMP_WORDS[*]} \" == *\" --as simulator \"* ]] && names=(--as simulator)\n"
           "        mapfile -t COMPREPLY < <(\"$program\" complete-path \"${names[@]}\" \"$kind\" \"$word\" "
           "2>/dev/null)\n"
           "        [[ $kind == category || $kind == finding ]] && mapfile -t COMPREPLY < <(compgen -W "
           "\"${COMPREPLY[*]}\" -- \"$word\")\n"
           "        [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *[.[=] ]] && compopt -o nospace 2>/dev/null\n"
           "        ;;\n"
           "    esac\n"
           "}\n\n"
           "_qvdb() {\n"
           "    local program=${COMP_WORDS[0]} command=${COMP_WORDS[1]} word=${COMP_WORDS[COMP_CWORD]} place=0 at\n"
           "    COMPREPLY=()\n"
           "    if [[ $COMP_CWORD -eq 1 || ($command == help && $COMP_CWORD -eq 2) ]]; then\n"
           "        _qvdb_complete choice help --help --version " +
           commandNames() +
           "\n"
           "        return 0\n"
           "    fi\n"
           "    # Behind an equals sign, which is a word of its own here, stands a value.\n"
           "    [[ $word == = || ${COMP_WORDS[COMP_CWORD - 1]} == = ]] && return 0\n"
           "    # What stands before the word: words so far, or an option that wants a value.\n"
           "    for ((at = 2; at < COMP_CWORD; ++at)); do\n"
           "        case $command,${COMP_WORDS[at]} in\n"
           "        " +
           bashValued() +
           ")\n"
           "            [[ $((at + 1)) -eq $COMP_CWORD ]] && place=${COMP_WORDS[at]}\n"
           "            at=$((at + 1))\n"
           "            ;;\n"
           "        *,-?*) ;;\n"
           "        *) place=$((place + 1)) ;;\n"
           "        esac\n"
           "    done\n"
           "    [[ $word == -?* || $word == - ]] && [[ $place != -* ]] && place=option\n"
           "    case $command,$place in\n" +
           bashCases() +
           "    esac\n"
           "    return 0\n"
           "}\n\n"
           "complete -F _qvdb qvdb\n";
}

std::string zshCompletion()
{
    std::string text = "#compdef qvdb\n# Completion of qvdb for zsh, made from the grammar of the program.\n\n"
                       "_qvdb_path() {\n"
                       "    local -a names found whole begun\n"
                       "    [[ \" $words \" == *' --as simulator '* ]] && names=(--as simulator)\n"
                       "    found=(${(f)\"$($program complete-path $names $1 \"$PREFIX\" 2>/dev/null)\"})\n"
                       "    begun=(${(M)found:#*[.\\[=]})\n"
                       "    whole=(${found:#*[.\\[=]})\n"
                       "    (( $#begun )) && compadd -Q -S '' -a begun\n"
                       "    (( $#whole )) && compadd -Q -a whole\n"
                       "}\n\n"
                       "_qvdb() {\n"
                       "    local context state line program=$words[1]\n"
                       "    typeset -A opt_args\n"
                       "    _arguments -C '(- *)--version[prints the version]' '(- *)'{-h,--help}'[prints help]' "
                       "'1: :->command' '*:: :->words' && return 0\n"
                       "    if [[ $state == command || $line[1] == help ]]; then\n"
                       "        local -a commands=(help:'prints help'";
    for (const Command& command : commands()) {
        text += "\n            " + shellText(std::string(command.pName) + ':' + zshText(command.pSummary));
    }
    text += ")\n        _describe command commands\n        return\n    fi\n    case $line[1] in\n";
    for (const Command& command : commands()) {
        text += zshCommand(command);
    }
    return text + "    esac\n}\n\n_qvdb \"$@\"\n";
}

} // namespace qv::tools
