#include <algorithm>
#include <cstdio>
#include <string>

#include "commands.h"
#include "explain.h"
#include "files.h"
#include "path_tree.h"
#include "session.h"

namespace qv::tools {
namespace {

ExitStatus explain(const Options& options)
{
    Tracing tracing(options);
    const PathTree tree(options.names == "simulator");
    Explanation explanation(tree, tracing);
    if (!explanation.open()) {
        return kRefused;
    }
    for (const std::string& name : options.words) {
        Input input;
        if (!readInput(name, options, input) || !explanation.add(std::move(input))) {
            return kRefused;
        }
    }
    explanation.print(options.asJson);
    if (!options.isQuiet) {
        std::fprintf(stderr, "fields that more than one file sets: %zu; to different values: %zu\n",
                     explanation.fields(), explanation.differing());
    }
    return kDone;
}

} // namespace

ExitStatus merge(const Options& options)
{
    const auto streams = std::count_if(options.words.begin(), options.words.end(), isStream);
    if (options.output.empty() && !options.explains) {
        return refuseUsage(options, "-o says where to write, --explain shows who sets what; one of them is missing");
    }
    if (streams > 1 || (streams == 1 && options.explains && !options.output.empty())) {
        return refuseUsage(options, streams > 1 ? "standard input can be read only once"
                                                : "standard input can be read only once, and --explain and -o both "
                                                  "read it");
    }
    if (options.explains && isStream(options.output)) {
        return refuseUsage(options, "--explain and -o - both want standard output");
    }
    if (options.asJson && !options.explains) {
        return refuseUsage(options, "--json prints what --explain tells; --explain is missing");
    }
    if (options.explains) {
        const ExitStatus status = explain(options);
        if (status != kDone || options.output.empty()) {
            return status;
        }
    }
    return convert(options);
}

} // namespace qv::tools
