#include "grammar.h"

#include <algorithm>

#include "commands.h"

namespace qv::tools {

const char* const kProgramSummary = "checks, compares, shows and changes parameter sets of an image signal processor";

const char* const kProgramDescription =
    "A parameter set is a .json text (tuning, simulator, calibration), an .ini file or a raw binary image (.bin, .img, "
    ".raw). The end of a name says which; --from and --to say it for any name. - is standard input or output, JSON "
    "unless --from or --to says otherwise.\n\n"
    "Results go to standard output; findings, warnings and traces to standard error.";

const char* const kPathDescription =
    "A path names a place of a set: CATEGORY.member[i].member, indices from 0. Calibration is named from its document. "
    "The same path holds whatever the form of the file.\n\n"
    "  AE_3.setPoint                         one value\n"
    "  A2DNR_5_2.tables[0].strength          a list\n"
    "  A2DNR_5_2.tables[*].strength[2:5]     items 2, 3 and 4 of every schedule\n"
    "  AE_3.*                                all members\n"
    "  sensor.CC[CT2850_100].ccMatrix        an element of calibration by its name\n\n"
    "tables.0.strength, a leading tuning. and JSON Pointers such as /tuning/A2DNR_5_2/tables/0 are understood as well.";

const char* const kEnvironment = "NO_COLOR  where it is set and not empty, no colours are shown";

namespace {

constexpr Option kVerbose{"-v,--verbose", nullptr, "a line for each category that a file sets, with its place",
                          &Options::isVerbose};
constexpr Option kQuiet{"-q,--quiet", nullptr, "says nothing but what is refused", &Options::isQuiet};
constexpr Option kForce{"-f,--force", nullptr, "writes over a file that was also read", &Options::isForced};
constexpr Option kJson{"--json", nullptr, "prints the result as JSON", &Options::asJson};
constexpr Option kOutput{"-o,--output", "OUT", "the file to write", &Options::output, nullptr, Names::File};
constexpr Option kFrom{"--from",       "FORM",           "form of what is read, whatever its name: json, ini or image",
                       &Options::from, "json|ini|image", Names::Form};
constexpr Option kTo{"--to",       "FORM",           "form of what is written, whatever its name: json, ini or image",
                     &Options::to, "json|ini|image", Names::Form};
constexpr Option kProtocol{"--protocol", "NAME",
                           "the JSON form to write: standard (a tuning document, the default) or simulator",
                           &Options::protocol, "standard|simulator"};
constexpr Option kNames{"--as", "NAMES", "whose names paths have: tuning (the default) or simulator", &Options::names,
                        "tuning|simulator"};
constexpr Option kStrict{"--strict", nullptr, "warnings count as errors do", &Options::isStrict};
constexpr Option kMissing{"--missing", nullptr, "lists the members that a document lacks", &Options::showsMissing};
constexpr Option kDisable{"--disable",        "ID",    "leaves out findings of that kind; may be said again",
                          &Options::disabled, nullptr, Names::Finding};
constexpr Option kTolerance{"--tolerance", "T", "numbers that differ by no more than T are equal", &Options::tolerance};
constexpr Option kExact{"--exact", nullptr, "compares every bit, also what no text document carries",
                        &Options::isExact};
constexpr Option kAll{"--all", nullptr, "shows every element of a list that differs", &Options::showsAll};
constexpr Option kCategory{"--category",         "KEY",   "only this category; may be said again",
                           &Options::categories, nullptr, Names::Category};
constexpr Option kStatistics{"--stat", nullptr, "one line a category: how many fields differ",
                             &Options::showsStatistics};
constexpr Option kExplain{"--explain", nullptr,
                          "shows each field that more than one file sets: value and place in each, "
                          "and which wins",
                          &Options::explains};
constexpr Option kOffset{"--at", "OFFSET", "the field that stands at this byte of the image; decimal or 0x",
                         &Options::offset};
constexpr Option kGain{"--gain", "G", "the gain", &Options::gain};
constexpr Option kInterpolation{"--interpolate", "HOW", "also a value between the rows: linear or nearest",
                                &Options::interpolation, "linear|nearest"};
constexpr Option kKey{"--key", "PATH=KEY",
                      "reads the list behind KEY in a plain calibration text into PATH; may be said again",
                      &Options::keys};

constexpr const Option* kAtOptions[] = {&kGain, &kInterpolation, &kNames, &kFrom, &kJson};
constexpr const Option* kCheckOptions[] = {&kStrict, &kMissing, &kDisable, &kNames, &kFrom, &kJson};
constexpr const Option* kCompleteOptions[] = {&kNames};
constexpr const Option* kConvertOptions[] = {&kOutput, &kForce, &kFrom, &kTo, &kProtocol, &kKey, &kQuiet, &kVerbose};
constexpr const Option* kCoverageOptions[] = {&kNames, &kFrom, &kJson};
constexpr const Option* kDiffOptions[] = {&kAll,        &kTolerance, &kExact, &kCategory,
                                          &kStatistics, &kNames,     &kFrom,  &kJson};
constexpr const Option* kDumpOptions[] = {&kOffset, &kJson};
constexpr const Option* kFieldsOptions[] = {&kNames, &kJson};
constexpr const Option* kGetOptions[] = {&kNames, &kFrom, &kJson};
constexpr const Option* kInfoOptions[] = {&kFrom, &kJson};
constexpr const Option* kMergeOptions[] = {&kOutput,   &kExplain, &kForce, &kFrom, &kTo,
                                           &kProtocol, &kNames,   &kJson,  &kQuiet};
constexpr const Option* kMetaOptions[] = {&kForce, &kProtocol, &kQuiet};
constexpr const Option* kReportOptions[] = {&kOutput, &kFrom};
constexpr const Option* kSetOptions[] = {&kOutput, &kFrom, &kNames, &kJson};

constexpr Example kAtExamples[] = {
    {"qvdb at imx477.json A2DNR_5_2.tables[0].strength --gain 3", "the points on either side of gain 3"},
    {"qvdb at imx477.json A2DNR_5_2 --gain 3 --interpolate linear", "everything that follows the gain in a record"},
};
constexpr Example kCheckExamples[] = {
    {"qvdb check imx477.json", "all faults, each with its place"},
    {"qvdb check --strict --disable unknown-member *.json", "in a build: warnings fail it"},
};
constexpr Example kConvertExamples[] = {
    {"qvdb convert imx477.json imx477.bin", "the end of the name decides the form"},
    {"qvdb convert base.json board.ini -o all.json", "files are laid over each other in order"},
    {"qvdb convert base.json imx477_calibration.txt -o out.json",
     "lays colour and shading of a plain calibration text over"},
    {"qvdb convert base.json -o - | jq .tuning.AE_3", "JSON to a pipe"},
};
constexpr Example kCoverageExamples[] = {{"qvdb coverage imx477.json", "what the document sets, category by category"}};
constexpr Example kDiffExamples[] = {
    {"qvdb diff day.json night.json", "field by field"},
    {"qvdb diff tuned.json flashed.bin --stat", "across forms, one line a category"},
    {"qvdb diff a.bin b.bin --exact", "every bit, as cmp does, with the fields that they belong to"},
};
constexpr Example kDumpExamples[] = {
    {"qvdb dump imx477.bin AE_3", "the record's bytes, field by field"},
    {"qvdb dump imx477.bin --at 0x15e8c", "which field stands there"},
};
constexpr Example kFieldsExamples[] = {
    {"qvdb fields", "all categories"},
    {"qvdb fields AE_3.setPoint", "type, range, places and meaning of a field"},
};
constexpr Example kGetExamples[] = {
    {"qvdb get imx477.json AE_3.setPoint", "the value alone"},
    {"qvdb get imx477.bin 'A2DNR_5_2.tables[*].hdr' --json", "paths and values"},
    {"qvdb get imx477.bin", "all settings, whatever the form of the file"},
};
constexpr Example kInfoExamples[] = {{"qvdb info imx477.json", "what a file is and what it sets"}};
constexpr Example kMergeExamples[] = {
    {"qvdb merge base.json lens.json board.ini -o all.json --explain", "the layers, and who sets what"}};
constexpr Example kMetaExamples[] = {{"qvdb meta frame.json frame_full.json", "frame metadata in its other form"}};
constexpr Example kReportExamples[] = {
    {"qvdb report imx477.json -o report.html", "one set"},
    {"qvdb report day.json night.bin -o report.html", "two sets over each other, differences first"},
};
constexpr Example kSchemaExamples[] = {{"qvdb schema > text.schema.json", "for editors"}};
constexpr Example kSetExamples[] = {
    {"qvdb set imx477.json AE_3.setPoint=45", "one value in place"},
    {"qvdb set imx477.json 'A2DNR_5_2.tables[*].strength[0]=40' -o changed.json", "into a new file"},
};

constexpr const char* kPlainExit = "0 done, 1 refused, 2 usage";

constexpr Command kCommands[] = {
    {"at",
     {"FILE PATH", 2, 2, Names::File, Names::Path},
     "shows the rows of the schedules at a gain",
     "Shows, for each list that runs along a gain axis in the schedules that the path names, the rows at the gain "
     "points on either side. PATH is a category, a schedule or a list. Beyond the ends it is the first or last row; an "
     "axis counts as far as it rises.\n\n"
     "How values between two gain points come about is decided by the layers above this library, not by it: what "
     "--interpolate shows is a reader's aid. Numbers that are names or bits are those of the nearer row, always.",
     kAtOptions,
     kAtExamples,
     kPlainExit,
     &at},
    {"check",
     {"FILE...", 1, kAnyNumber},
     "finds every fault of a document, before anything is loaded",
     "A load forgives: a member that nobody knows is passed over, a number too large for its field loses its high "
     "bits, "
     "a list too long is cut. check tells all of that, in order of place, one line each:\n\n"
     "  FILE:LINE:COLUMN: error|warning: PATH: text [id]\n\n"
     "In an image the place is an offset. The file is not changed, and nothing of it is loaded.",
     kCheckOptions,
     kCheckExamples,
     "0 clean, 1 findings, 2 could not check",
     &check},
    {"convert",
     {"IN... [OUT]", 1, kAnyNumber},
     "loads files over each other and saves them as one",
     "Loads the files in order, each over those before it, and saves the whole set as OUT. Two names without -o are IN "
     "and OUT; with more, -o must say where to. The file is replaced at once or not at all.\n\n"
     "Says what each file sets, what of the files before it is replaced as a whole, and, one line a category, what the "
     "form of OUT does not carry of all that differs from the defaults. Warns of a file that sets nothing, of bytes "
     "that "
     "may be no image, and of a version that isn't the library's.\n\n"
     "A name that ends in .txt is a plain calibration text: its lists ctm and successional_color_offset are laid over "
     "CCM_1_1, its lists LSC_SECT_SIZE_X, LSC_SECT_SIZE_Y and LSC_SAMPLES_* over LSC_4, or each list that --key names "
     "over its path.",
     kConvertOptions,
     kConvertExamples,
     kPlainExit,
     &convert},
    {"coverage",
     {"FILE", 1, 1},
     "shows what a document sets, what it leaves, and what is passed over",
     "Counts, for each category and list, the fields that the document sets, those that keep their value, and the "
     "members that a load passes over.",
     kCoverageOptions,
     kCoverageExamples,
     kPlainExit,
     &coverage},
    {"diff",
     {"A B", 2, 2},
     "compares two sets field by field, across all forms",
     "Prints one line for each field that differs: PATH  old -> new. Lists of which more than four elements differ are "
     "summed up, and lists are compared as far as both are in use. A line whose field the form of one side doesn't "
     "carry says so.\n\n"
     "What a JSON text can't tell apart, more than six digits behind the point, counts as equal. When and by which "
     "version a text was saved, class names, and what no text carries are no settings and left out. --exact compares "
     "every bit of all of it, also rows that are not in use, and padding.\n\n"
     "/dev/null stands for a set at its defaults.",
     kDiffOptions,
     kDiffExamples,
     "0 same, 1 different, 2 trouble",
     &diff},
    {"dump",
     {"IMAGE [PATH]", 1, 2, Names::File, Names::Path},
     "shows the bytes of an image with their fields",
     "Prints offset, bytes, path and value of each field of a binary image, padding between them, and rows that are "
     "not "
     "in use; or which field stands at an offset. The bytes are shown as they are in the file, whatever a load would "
     "make of them, also those of an image that is too short and of the raw image of a calibration.",
     kDumpOptions,
     kDumpExamples,
     kPlainExit,
     &dump},
    {"fields",
     {"[PATH]", 0, 1, Names::Path, Names::Path},
     "the catalog of all fields",
     "Without a path it lists the categories with their meanings; of a category or a record all fields, one a line; of "
     "a field everything that is known: type, range, unit, named values, what it is there for, and where each form "
     "holds "
     "it. Indices may be left out.",
     kFieldsOptions,
     kFieldsExamples,
     kPlainExit,
     &fields},
    {"get",
     {"FILE [PATH...]", 1, kAnyNumber, Names::File, Names::Path},
     "prints values",
     "Prints the values that the paths name, one a line in the order of the paths; with --json an object of path and "
     "value. Without a path it prints all settings, PATH = VALUE one a line, as a text that git can compare.",
     kGetOptions,
     kGetExamples,
     kPlainExit,
     &get},
    {"info",
     {"[FILE...]", 0, kAnyNumber},
     "shows what files are and what they set",
     "Loads the files over each other. Shows form, parts, version and date of each and how much it sets, then sensor "
     "and calibration of all together, and for each category how many values the files set (each file's are counted; "
     "whole: an image or a calibration text set it) and whether it came to differ from the defaults. Without a file: "
     "the defaults.",
     kInfoOptions,
     kInfoExamples,
     kPlainExit,
     &info},
    {"merge",
     {"FILE...", 1, kAnyNumber},
     "lays files over each other and explains who sets what",
     "Saves the layers as one file, as convert does. --explain prints, for each field that more than one file sets, "
     "value and place in each, and which wins; without -o nothing is written.\n\n"
     "Lists that a later file gives another length are told as well, and calibration: the one of a later text replaces "
     "all of the one before.",
     kMergeOptions,
     kMergeExamples,
     kPlainExit,
     &merge},
    {"meta",
     {"IN OUT", 2, 2},
     "converts frame metadata between its two JSON forms",
     "Reads either form, which the content tells, and writes the one that --protocol says. Both files are JSON, "
     "whatever "
     "their names; - is standard input or output.",
     kMetaOptions,
     kMetaExamples,
     kPlainExit,
     &meta},
    {"report",
     {"FILE [OTHER]", 1, 2},
     "writes a page that shows a set, or two over each other",
     "Writes one HTML file that needs nothing else: curves, schedules over gain, matrices, maps and tables of "
     "everything "
     "else, with a search and a gain for the whole page. Of two files each picture shows both, and the differences "
     "come "
     "first.",
     kReportOptions,
     kReportExamples,
     kPlainExit,
     &report},
    {"schema",
     {"[FORM]", 0, 1, Names::Form, Names::Form, "tuning|simulator|calibration|meta"},
     "prints a JSON Schema, by which editors check a document",
     "FORM is tuning, simulator, calibration or meta; without one the schema is that of any text document.",
     {},
     kSchemaExamples,
     kPlainExit,
     &schema},
    {"set",
     {"FILE PATH=VALUE...", 2, kAnyNumber, Names::File, Names::Setting},
     "changes values of a file in place",
     "Changes a JSON or .ini text and leaves comments, order, unknown members and every byte alone that it was not "
     "asked "
     "to change; a member that the document lacks is added where the library would write it. An image is changed at "
     "its "
     "offset.\n\n"
     "A value is a number, true or false, the name of a value, or the characters of a text. A list takes one value for "
     "all of its items, or a JSON list; a record takes a JSON object with some of its members. A schedule takes a list "
     "of another length.\n\n"
     "The file is replaced at once or not at all, after a load of the new text has given the values that were asked "
     "for and all others as they were. What doesn't fit its field is refused, and so is a path that leads nowhere.",
     kSetOptions,
     kSetExamples,
     kPlainExit,
     &set},
};

/// Only completions call it, so that no list of paths stands in them.
constexpr Command kCompletePath = {
    "complete-path",
    {"path|setting|category|finding BEGIN", 2, 2, Names::Nothing, Names::Nothing},
    "prints how a path may go on",
    "For completions.",
    kCompleteOptions,
    {},
    kPlainExit,
    &completePath,
};

constexpr std::size_t kWidth = 80;
constexpr std::size_t kIndent = 2;

/// Appends a text, broken into lines at blanks; lines that begin with a blank stay as they are.
void appendWrapped(std::string& text, std::string_view words, std::size_t indent)
{
    while (!words.empty()) {
        const std::size_t end = std::min(words.find('\n'), words.size());
        std::string_view line = words.substr(0, end);
        words.remove_prefix(std::min(end + 1, words.size()));
        while (line.size() + indent > kWidth && !line.starts_with(' ')) {
            const std::size_t cut = line.rfind(' ', kWidth - indent);
            if (cut == std::string_view::npos) {
                break; // one long word
            }
            text.append(line.substr(0, cut)) += '\n';
            text.append(indent, ' ');
            line.remove_prefix(cut + 1);
        }
        text.append(line) += '\n';
        if (!words.empty() && words.front() != '\n') {
            text.append(indent, ' ');
        }
    }
}

/// Two columns: what one types, and what it does.
void appendRow(std::string& text, const std::string& left, const char* pRight, std::size_t column)
{
    text.append(kIndent, ' ') += left;
    if (left.size() + kIndent + 2 > column) {
        text += '\n';
        text.append(column, ' ');
    } else {
        text.append(column - kIndent - left.size(), ' ');
    }
    appendWrapped(text, pRight, column);
}

std::string optionHead(const Option& option)
{
    std::string head = option.pNames;
    if (const std::size_t comma = head.find(','); comma != std::string::npos) {
        head.insert(comma + 1, " ");
    }
    return option.pValue == nullptr ? head : head + ' ' + option.pValue;
}

} // namespace

std::span<const Command> commands()
{
    return kCommands;
}

const Command* findCommand(const std::string& name)
{
    for (const Command& command : kCommands) {
        if (name == command.pName) {
            return &command;
        }
    }
    return name == kCompletePath.pName ? &kCompletePath : nullptr;
}

std::vector<std::string> splitAt(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

std::string programHelp()
{
    std::string text;
    appendWrapped(text, std::string("qvdb ") + kProgramSummary + '.', 0);
    text += "\nusage: qvdb COMMAND [OPTIONS] WORDS...\n\n";
    for (const Command& command : kCommands) {
        appendRow(text, command.pName, command.pSummary, 12);
    }
    text += '\n';
    appendWrapped(text, kProgramDescription, 0);
    text += "\nqvdb COMMAND --help tells more of a command; qvdb --version tells the version.\n";
    return text;
}

std::string commandHelp(const Command& command)
{
    std::string text = std::string("usage: qvdb ") + command.pName + (command.options.empty() ? "" : " [OPTIONS]") +
                       ' ' + command.words.pUsage + "\n\n";
    appendWrapped(text, command.pDescription, 0);
    text += "\noptions:\n";
    for (const Option* pOption : command.options) {
        appendRow(text, optionHead(*pOption), pOption->pMeaning, 26);
    }
    appendRow(text, "-h, --help", "prints this", 26);
    text += "\nexamples:\n";
    for (const Example& example : command.examples) {
        text.append(kIndent, ' ') += std::string(example.pLine) + '\n';
        text.append(kIndent + 4, ' ');
        appendWrapped(text, example.pMeaning, kIndent + 4);
    }
    if (std::string_view(command.words.pUsage).find("PATH") != std::string_view::npos) {
        text += '\n';
        appendWrapped(text, kPathDescription, 0);
    }
    return text + "\nexit status: " + command.pExit + '\n';
}

} // namespace qv::tools
