#include <algorithm>
#include <string>
#include <vector>

#include "calibration_text.h"
#include "commands.h"
#include "files.h"
#include "layers.h"
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
bool loadLayer(Session& session, Input& input, const Options& options, Layer& layer)
{
    if (input.form == Form::CalibrationText) {
        std::vector<std::string> set;
        const bool isLoaded = options.keys.empty() ? loadCalibrationText(session, input, set)
                                                   : loadCalibrationLists(session, input, options.keys, set);
        layer = layerOf(input, set);
        return isLoaded;
    }
    if (!options.isQuiet) {
        layer = layerOf(input, session);
    }
    return session.load(input);
}

/// Tells what the form written lacks of what was loaded.
void sayLosses(const Session& session, Tracing& tracing, const std::vector<Layer>& layers, const std::string& out,
               Form form, bool isSimulator)
{
    std::vector<Form> forms;
    forms.reserve(layers.size());
    for (const Layer& layer : layers) {
        forms.push_back(layer.form);
    }
    const std::string lacks = out + " does not carry ";
    for (const std::string& loss : lossesOf(session, tracing, forms, form, isSimulator)) {
        say(std::string(lacks).append(loss));
    }
    for (const Layer& layer : layers) {
        if (layer.comments != 0) {
            say(std::string(lacks).append("the comments of " + layer.name + ", " + std::to_string(layer.comments)));
        }
        constexpr std::size_t kMost = 3;
        std::string line;
        for (std::size_t i = 0; i < layer.unknown.size() && i < kMost; ++i) {
            line.append(i == 0 ? "what is unknown in " + layer.name + ": " : ", ").append(layer.unknown[i]);
        }
        if (layer.unknown.size() > kMost) {
            line.append(" and " + std::to_string(layer.unknown.size() - kMost) + " more");
        }
        if (!line.empty()) {
            say(std::string(lacks).append(line));
        }
    }
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
    if (!options.protocol.empty() && form != Form::Json) {
        warn("--protocol changes nothing of " + shownName(out, false) + ", which is no JSON");
    }
    if (!mayReplace(out, in, options) || !session.open() || !session.setProtocol(options.protocol)) {
        return kRefused;
    }
    std::vector<Layer> layers;
    for (const std::string& name : in) {
        Input input;
        Layer layer;
        if (!readInput(name, options, input) || !loadLayer(session, input, options, layer)) {
            return kRefused;
        }
        sayLayer(layer, options.isVerbose);
        layers.push_back(layer);
    }
    if (!session.save(out, form)) {
        return kRefused;
    }
    if (!options.isQuiet) {
        sayLosses(session, tracing, layers, shownName(out, false), form, options.protocol == "simulator");
    }
    say("saved " + shownName(out, false));
    return kDone;
}

} // namespace qv::tools
