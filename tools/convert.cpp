#include <algorithm>
#include <string>
#include <vector>

#include "calibration_text.h"
#include "commands.h"
#include "files.h"
#include "losses.h"
#include "output.h"
#include "session.h"

namespace qv::tools {
namespace {

bool isText(const std::string& name, const Options& options)
{
    return options.from.empty() && name.ends_with(".txt");
}

/// What is wrong with the words; empty where nothing is.
std::string wrongWords(const Options& options, const std::vector<std::string>& in, const std::string& out)
{
    if (options.output.empty() && options.words.size() == 1) {
        return "where to write is missing behind " + options.words[0];
    }
    if (options.output.empty() && options.words.size() > 2) {
        return std::to_string(options.words.size()) + " names are given; -o says which file to write, as in -o " +
               options.words.back();
    }
    if (std::count_if(in.begin(), in.end(), isStream) > 1) {
        return "standard input can be read only once";
    }
    if (options.to.empty() && out.ends_with(".txt")) {
        return "no calibration text can be written; --to says which form " + out + " has";
    }
    for (const std::string& setting : options.keys) {
        if (setting.find('=') == std::string::npos || setting.ends_with('=') || setting.starts_with('=')) {
            return "--key wants PATH=KEY, not " + setting;
        }
    }
    const auto isTextOne = [&](const std::string& name) { return isText(name, options); };
    if (!options.keys.empty() && std::none_of(in.begin(), in.end(), isTextOne)) {
        return "--key is for calibration text, a name that ends in .txt";
    }
    return "";
}

/// Loads one file over what is there.
bool loadLayer(Session& session, Input& input, const Options& options)
{
    if (input.form != Form::CalibrationText || options.keys.empty()) {
        return session.load(input);
    }
    std::vector<std::string> paths;
    return loadCalibrationLists(session, input, options.keys, paths);
}

} // namespace

ExitStatus convert(const Options& options)
{
    const bool hasOption = !options.output.empty();
    const std::string out = hasOption || options.words.empty() ? options.output : options.words.back();
    const std::vector<std::string> in(options.words.begin(), options.words.end() - (hasOption ? 0 : 1));
    if (const std::string wrong = wrongWords(options, in, out); !wrong.empty()) {
        return refuseUsage(options, wrong);
    }
    Tracing tracing(options);
    Session session(tracing);
    const Form form = formOf(out, options.to);
    if (!mayReplace(out, in, options) || !session.open() || !session.setProtocol(options.protocol)) {
        return kRefused;
    }
    std::vector<Form> forms;
    for (const std::string& name : in) {
        Input input;
        if (!readInput(name, options, input) || !loadLayer(session, input, options)) {
            return kRefused;
        }
        forms.push_back(input.form);
        say("loaded " + input.shown());
    }
    if (!session.save(out, form)) {
        return kRefused;
    }
    if (!options.isQuiet) {
        for (const std::string& loss : lossesOf(session, tracing, forms, form, options.protocol == "simulator")) {
            say(shownName(out, false) + " does not carry " + loss);
        }
    }
    say("saved " + shownName(out, false));
    return kDone;
}

} // namespace qv::tools
