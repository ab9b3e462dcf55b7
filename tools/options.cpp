#include "options.h"

#include <string_view>

namespace qv::tools {

bool readOptions(int argc, char* argv[], Options& options)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "-v") {
            options.isVerbose = true;
        } else if (word == "--protocol") {
            const std::string_view name = i + 1 < argc ? argv[++i] : "";
            if (name != "simulator" && name != "standard") {
                return false;
            }
            options.isSimulator = name == "simulator";
        } else if (word.size() > 1 && word.front() == '-') {
            return false;
        } else if (options.command.empty()) {
            options.command = word;
        } else {
            options.files.emplace_back(word);
        }
    }
    return true;
}

} // namespace qv::tools
