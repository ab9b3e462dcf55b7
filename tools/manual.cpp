// Writes the man pages of qvdb and its completions from the grammar that also reads its command line:
// make_manual FOLDER SOURCE DATE

#include <algorithm>
#include <cstdio>
#include <exception>
#include <fstream>
#include <string>
#include <string_view>

#include "completions.h"
#include "grammar.h"

using namespace qv::tools;

namespace {

/// A text as roff takes it: its own signs and hyphens escaped, no line beginning like a request.
std::string roff(std::string_view text)
{
    std::string escaped;
    bool isFirst = true;
    for (const char character : text) {
        if (isFirst && (character == '.' || character == '\'')) {
            escaped += "\\&";
        }
        isFirst = character == '\n';
        if (character == '\\') {
            escaped += "\\e";
        } else if (character == '-') {
            escaped += "\\-";
        } else {
            escaped += character;
        }
    }
    return escaped;
}

/// An argument of a request.
std::string quoted(std::string_view text)
{
    std::string argument = "\"";
    for (const char character : roff(text)) {
        argument += character == '"' ? "\"\"" : std::string(1, character);
    }
    return argument + '"';
}

std::string capitals(std::string text)
{
    for (char& character : text) {
        character = character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
    }
    return text;
}

/// Paragraphs, apart by an empty line; lines that begin with a blank stay as they are.
void appendParagraphs(std::string& page, std::string_view text)
{
    bool isPlain = false;
    bool wantsParagraph = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const bool isLinePlain = line.starts_with(' ');
        if (isPlain && !isLinePlain) {
            page += ".fi\n.RE\n";
            isPlain = false;
        }
        if (line.empty()) {
            wantsParagraph = true;
            continue;
        }
        if (wantsParagraph) {
            page += ".PP\n";
        }
        if (isLinePlain && !isPlain) {
            page += ".RS 2\n.nf\n";
            isPlain = true;
        }
        wantsParagraph = false;
        page += roff(isLinePlain ? line.substr(2) : line) + '\n';
    }
    page += isPlain ? ".fi\n.RE\n" : "";
}

struct Page {
    const char* pSource;
    const char* pDate;
};

std::string heading(const Page& page, const std::string& name, const char* pSummary)
{
    return ".\\\" Made from the grammar of the program.\n.TH " + quoted(capitals(name)) + " 1 \"" + page.pDate + "\" " +
           quoted(page.pSource) + ' ' + quoted("User Commands") + "\n.SH NAME\n" + roff(name) + " \\- " +
           roff(pSummary) + '\n';
}

void appendEnvironment(std::string& text)
{
    const std::string_view all = kEnvironment;
    const std::size_t blank = all.find(' ');
    const std::size_t meaning = all.find_first_not_of(' ', blank);
    text += ".SH ENVIRONMENT\n.TP\n.B " + roff(all.substr(0, blank)) + '\n' + roff(all.substr(meaning)) + '\n';
}

std::string programPage(const Page& page)
{
    std::string text = heading(page, "qvdb", kProgramSummary);
    text += ".SH SYNOPSIS\n.B qvdb\n.I COMMAND\n.RI [ OPTIONS ]\n.IR WORDS ...\n.br\n.B qvdb help\n.RI [ COMMAND ]\n"
            ".br\n.B qvdb \\-\\-version\n.SH DESCRIPTION\n";
    appendParagraphs(text, kProgramDescription);
    text += ".SH COMMANDS\n";
    for (const Command& command : commands()) {
        text += ".TP\n.BR " + quoted(std::string("qvdb-") + command.pName) + " (1)\n" + roff(command.pSummary) + '\n';
    }
    text += ".SH PATHS\n";
    appendParagraphs(text, kPathDescription);
    text += ".SH EXIT STATUS\n0 done, 1 refused, 2 usage;\n.B check\nand\n.B diff\nanswer as\n.BR cmp (1)\ndoes.\n";
    appendEnvironment(text);
    return text;
}

std::string commandPage(const Page& page, const Command& command)
{
    const std::string name = std::string("qvdb-") + command.pName;
    std::string text = heading(page, name, command.pSummary);
    text += ".SH SYNOPSIS\n.B qvdb " + roff(command.pName) + '\n' +
            (command.options.empty() ? "" : ".RI [ OPTIONS ]\n") + ".I " + quoted(command.words.pUsage) +
            "\n.SH DESCRIPTION\n";
    appendParagraphs(text, command.pDescription);
    text += ".SH OPTIONS\n";
    for (const Option* pOption : command.options) {
        std::string names = roff(pOption->pNames);
        if (const std::size_t comma = names.find(','); comma != std::string::npos) {
            names.replace(comma, 1, "\\fR, \\fB");
        }
        text += ".TP\n\\fB" + names + "\\fR" +
                (pOption->pValue == nullptr ? "" : " \\fI" + roff(pOption->pValue) + "\\fR") + '\n' +
                roff(pOption->pMeaning) + '\n';
    }
    text += ".TP\n\\fB\\-h\\fR, \\fB\\-\\-help\\fR\nprints a shorter form of this\n";
    if (std::string_view(command.words.pUsage).find("PATH") != std::string_view::npos) {
        text += ".SH PATHS\n";
        appendParagraphs(text, kPathDescription);
    }
    text += ".SH EXIT STATUS\n" + roff(command.pExit) + '\n';
    appendEnvironment(text);
    text += ".SH EXAMPLES\n";
    for (const Example& example : command.examples) {
        text += ".TP\n.B " + quoted(example.pLine) + '\n' + roff(example.pMeaning) + '\n';
    }
    return text + ".SH SEE ALSO\n.BR qvdb (1)\n";
}

bool write(const std::string& name, const std::string& text)
{
    std::ofstream file(name, std::ios::binary);
    file << text;
    file.close();
    if (!file) {
        std::fprintf(stderr, "make_manual: %s can't be written\n", name.c_str());
    }
    return static_cast<bool>(file);
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        if (argc != 4) {
            std::fprintf(stderr, "usage: make_manual FOLDER SOURCE DATE\n");
            return 2;
        }
        const std::string folder = argv[1];
        const Page page{argv[2], argv[3]};
        bool isDone = write(folder + "/man/man1/qvdb.1", programPage(page)) &&
                      write(folder + "/bash-completion/completions/qvdb", bashCompletion()) &&
                      write(folder + "/zsh/site-functions/_qvdb", zshCompletion());
        for (const Command& command : commands()) {
            isDone = isDone && write(folder + "/man/man1/qvdb-" + command.pName + ".1", commandPage(page, command));
        }
        return isDone ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_manual: %s\n", error.what());
        return 1;
    }
}
