// Peak memory of a load and a save, each the first one of a new process, so that what a reader keeps counts too.
#include "rows.h"

#include <cstdio>
#include <memory>

namespace qv::benchmark {

std::size_t peakOf(const std::string& arguments)
{
    const std::string command = QV_PEAK " " + arguments;
    const std::unique_ptr<std::FILE, decltype(&pclose)> pOutput(popen(command.c_str(), "r"), &pclose);
    std::size_t peak = 0;
    check(pOutput != nullptr && std::fscanf(pOutput.get(), "%zu", &peak) == 1, command);
    return peak;
}

void memoryRows(Report& report, const Document& document)
{
    const auto rounds = [](std::size_t peak, std::size_t text) {
        return std::vector<Round>{{static_cast<double>(peak), static_cast<double>(text)}};
    };
    report.add("peak memory of a load", "size of the text", 5, document.name,
               rounds(peakOf("load " + document.json), document.text.size()));
    const std::string output = document.output + ".json";
    const std::size_t peak = peakOf("save " + document.json + " " + output);
    report.add("peak memory of a save", "size of the text", 5, document.name, rounds(peak, readFile(output).size()));
}

} // namespace qv::benchmark
