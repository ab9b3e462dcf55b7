// Whole programs from start to end: what the commands that look through a document cost in parts of the plain way from
// one form to another.
#include "rows.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <utility>

#include <qv_database_c/database_2d_noise_reduction_5_2.h>

namespace qv::benchmark {
namespace {

constexpr int kRuns = 20;
constexpr double kGoal = 3;

using Arguments = std::vector<std::string>;

/// Runs a program without its output. Its exit status, and how long it took in milliseconds.
std::pair<int, double> run(const Arguments& arguments)
{
    std::vector<char*> words;
    for (const std::string& argument : arguments) {
        words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    check(posix_spawn_file_actions_init(&actions) == 0, "posix_spawn_file_actions_init");
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    timespec begin{};
    clock_gettime(CLOCK_MONOTONIC, &begin);
    pid_t child = 0;
    int state = 0;
    check(posix_spawn(&child, words[0], &actions, nullptr, words.data(), environ) == 0, arguments[0]);
    check(waitpid(child, &state, 0) == child, "waitpid");
    timespec end{};
    clock_gettime(CLOCK_MONOTONIC, &end);
    posix_spawn_file_actions_destroy(&actions);
    const double time =
        static_cast<double>(end.tv_sec - begin.tv_sec) * 1e3 + static_cast<double>(end.tv_nsec - begin.tv_nsec) / 1e6;
    return {WIFEXITED(state) ? WEXITSTATUS(state) : -1, time};
}

struct Command {
    std::string name;
    Arguments arguments;
    std::vector<double> times = {};

    double median() const
    {
        auto sorted = times;
        std::sort(sorted.begin(), sorted.end());
        return (sorted[(kRuns - 1) / 2] + sorted[kRuns / 2]) / 2;
    }
};

/// The first way of calling a command that it knows: with 2 it says that it doesn't. One that finds something says 1.
std::optional<Command> findCommand(const std::string& name, const std::vector<Arguments>& ways)
{
    for (const Arguments& arguments : ways) {
        const int status = run(arguments).first;
        if (status == 0 || status == 1) {
            return Command{name, arguments};
        }
    }
    return std::nullopt;
}

} // namespace

void printPrograms(const Folder& folder, const std::string& program)
{
    const Document sample = makeDocuments(folder).front();
    const std::string changed = folder.file("changed.json");
    Database database(sample.json);
    static_cast<QvDatabase2DNoiseReduction_5_2_t*>(database.record("2DNR_5_2"))->strength ^= 1;
    database.save(changed);
    const std::string output = folder.file("converted.bin");

    std::vector<Command> commands;
    const std::pair<std::string, std::vector<Arguments>> wanted[] = {
        {"qvdb convert", {{program, "convert", sample.json, "-o", output}, {program, "convert", sample.json, output}}},
        {"qvdb check", {{program, "check", sample.json}}},
        {"qvdb diff", {{program, "diff", sample.json, changed}}},
    };
    for (const auto& [name, ways] : wanted) {
        if (auto command = findCommand(name, ways)) {
            commands.push_back(*command);
        } else {
            check(!commands.empty(), name); // nothing to compare with
            std::fprintf(stderr, "%s: skipped, this program has no such command\n", name.c_str());
        }
    }
    for (int round = 0; round < kRuns; ++round) { // in turns, so that a disturbance meets all of them
        for (Command& command : commands) {
            command.times.push_back(run(command.arguments).second);
        }
    }
    std::printf("\n| program | ms | against `qvdb convert` | goal | met |\n|---|---|---|---|---|\n");
    for (const Command& command : commands) {
        const double ratio = command.median() / commands.front().median();
        if (&command == &commands.front()) {
            std::printf("| `%s` | %.2f | | | |\n", command.name.c_str(), command.median());
        } else {
            std::printf("| `%s` | %.2f | %.2f | %g | %s |\n", command.name.c_str(), command.median(), ratio, kGoal,
                        ratio <= kGoal ? "yes" : "no");
        }
    }
}

} // namespace qv::benchmark
