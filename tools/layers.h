#pragma once

// What one file brings into a set.

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "files.h"
#include "session.h"

namespace qv::tools {

/// What a file sets of a category.
struct LayerCategory {
    std::string key;
    std::size_t values = 0; ///< numbers, bools and texts; of an image 0, which sets all of it
    std::size_t line = 0;   ///< where it begins; of an image 0
};

/// A file as a load takes it.
struct Layer {
    std::string name;
    Form form = Form::Json;
    std::vector<std::string> documents; ///< the parts that it holds, such as tuning and calibration
    std::string version;                ///< what the file says itself; empty where it doesn't
    std::string date;
    std::vector<LayerCategory> categories; ///< in the order of loading
    std::vector<std::string> unknown;      ///< what nobody knows, with its line
    std::vector<std::string> replaced;     ///< what it replaces as a whole, of what was there before
    std::size_t values = 0;
    std::size_t comments = 0;
    std::string doubt; ///< why it may be none of its form; empty where nothing speaks for that
};

/// Looks through a file before it is loaded; the session holds what was loaded before it. Empty for a text with a
/// fault, which a load refuses.
Layer layerOf(const Input& input, const Session& session);

/// What the lists of a calibration text set.
Layer layerOf(const Input& input, const std::vector<std::string>& paths);

/// Tells what was loaded: how much, what it replaced and what it may not be. With isVerbose each category has a line.
void sayLayer(const Layer& layer, bool isVerbose);

} // namespace qv::tools
