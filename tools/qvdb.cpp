// qvdb: a workbench for parameter sets, on the public interfaces alone.

#include <exception>
#include <new>
#include <optional>

#include "grammar.h"
#include "options.h"
#include "output.h"

using namespace qv::tools;

int main(int argc, char* argv[])
{
    try {
        Options options;
        const std::optional<ExitStatus> ended = readOptions(argc, argv, options);
        return finishOutput(ended.has_value() ? *ended : options.pCommand->pRun(options));
    } catch (const std::bad_alloc&) {
        complain("no memory (5)");
    } catch (const std::exception& error) {
        complain(error.what());
    }
    return kTrouble;
}
