#include <algorithm>

#include "commands.h"
#include "files.h"
#include "layers.h"
#include "output.h"
#include "session.h"

namespace qv::tools {

ExitStatus meta(const Options& options)
{
    const std::string& out = options.words[1];
    Options asJson = options; // whatever their names
    asJson.from = formName(Form::Json);
    Tracing tracing(options);
    Session session(tracing);
    Input input;
    if (!session.open() || !session.setProtocol(options.protocol)) {
        return kRefused;
    }
    if (!readInput(options.words[0], asJson, input) || !mayReplace(out, {&options.words[0], 1}, options) ||
        !session.loadMeta(input) || !session.saveMeta(out)) {
        return kRefused;
    }
    const Layer layer = layerOf(input, session);
    const auto isMeta = [](const LayerCategory& category) { return category.key == "MT"; };
    if (std::none_of(layer.categories.begin(), layer.categories.end(), isMeta)) {
        warn(input.shown() + " sets nothing of the frame metadata");
    }
    say("saved " + shownName(out, false));
    return kDone;
}

} // namespace qv::tools
