#include <cstddef>
#include <cstdio>

#include "commands.h"
#include "files.h"
#include "session.h"

namespace qv::tools {

ExitStatus convert(const Options& options)
{
    const std::string& out = options.output.empty() ? options.words.back() : options.output;
    const std::size_t number = options.words.size() - (options.output.empty() ? 1 : 0);
    Tracing tracing(options);
    Session session(tracing);
    if (!session.open() || !session.setProtocol(options.protocol)) {
        return kRefused;
    }
    for (std::size_t i = 0; i < number; ++i) {
        Input input;
        if (!readInput(options.words[i], options, input) || !session.load(input)) {
            return kRefused;
        }
        std::fprintf(stderr, "loaded %s\n", input.shown().c_str());
    }
    if (!session.save(out, formOf(out, options.to))) {
        return kRefused;
    }
    std::fprintf(stderr, "saved %s\n", shownName(out, false).c_str());
    return kDone;
}

} // namespace qv::tools
