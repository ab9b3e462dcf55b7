// qvdb: a workbench for parameter sets, on the public interfaces alone.

#include <cstdlib>
#include <exception>
#include <new>
#include <optional>

#include <unistd.h>

#include "grammar.h"
#include "options.h"
#include "output.h"

using namespace qv::tools;

namespace {

/// Where there is no memory even for the exception that says so, the language has nothing left but to terminate.
[[noreturn]] void endWithoutMemory()
{
    if (std::current_exception() != nullptr) {
        std::abort(); // one that nobody caught
    }
    constexpr char kLine[] = "qvdb: no memory (5)\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, kLine, sizeof kLine - 1);
    _exit(kTrouble);
}

/// Before the objects of other sources are made, some of which take memory.
[[gnu::constructor(101)]] void expectNoMemory()
{
    std::set_terminate(&endWithoutMemory);
}

} // namespace

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
