#pragma once

// The words of a command line.

#include <string>
#include <vector>

namespace qv::tools {

struct Options {
    std::string command;
    std::vector<std::string> files;
    bool isSimulator = false;
    bool isVerbose = false;
};

/// False: the words don't make a command.
bool readOptions(int argc, char* argv[], Options& options);

} // namespace qv::tools
