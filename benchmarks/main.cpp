// Prints what the library's work costs in parts of what the same work costs elsewhere.
//
//     qv_benchmark [--json FILE]        the table, with its rows for a program, too
//     qv_benchmark --growth             time and memory for each byte of large documents
//     qv_benchmark --programs QVDB      whole runs of that program's commands
//     qv_benchmark --documents FOLDER   writes the documents there, for a profiler
#include "rows.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <qv_common_c/common_tracer.h>

namespace {

using namespace qv::benchmark;

constexpr int kPasses = 5;

std::string processor()
{
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("model name")) {
            return line.substr(line.find(": ") + 2);
        }
    }
    return "unknown processor";
}

void printMachine()
{
    char date[16];
    const std::time_t time = std::time(nullptr);
    std::strftime(date, sizeof date, "%Y-%m-%d", std::gmtime(&time));
    double load = 0;
    getloadavg(&load, 1);
    std::printf("%s, %s, %u cores, load average %.1f, %s, %s\n", date, processor().c_str(),
                std::thread::hardware_concurrency(), load, QV_COMPILER, peers().c_str());
}

void printTable(const Folder& folder, const std::string& jsonName)
{
    Report report;
    const auto documents = makeDocuments(folder);
    // Each pass opens everything anew, so that no row hangs on where one block happens to lie.
    for (int pass = 0; pass < kPasses; ++pass) {
        for (const Document& document : documents) {
            for (const auto rows : {textRows, fileRows, recordRows}) {
                rows(report, document);
            }
        }
        std::fprintf(stderr, "pass %d of %d\n", pass + 1, kPasses);
    }
    for (const Document& document : documents) {
        memoryRows(report, document);
        std::printf("%s: %zu bytes\n", document.name.c_str(), document.text.size());
    }
    std::printf("\n");
    report.print();
    if (!jsonName.empty()) {
        report.writeJson(jsonName);
    }
}

int run(const std::vector<std::string>& arguments)
{
    const std::string option = arguments.empty() ? "" : arguments[0];
    const bool isGrowth = option == "--growth" && arguments.size() == 1;
    const bool isDocuments = option == "--documents" && arguments.size() == 2;
    const bool isPrograms = option == "--programs" && arguments.size() == 2;
    const bool isJson = option == "--json" && arguments.size() == 2;
    if (!isGrowth && !isDocuments && !isPrograms && !isJson && !arguments.empty()) {
        std::fprintf(stderr, "usage: qv_benchmark [--json FILE | --growth | --programs QVDB | --documents FOLDER]\n");
        return 2;
    }
    // What the peers don't print we don't print either: traces begin at Error, and nothing here fails.
    QvCommonTracerOpenParam_t tracer{};
    tracer.level = QvCommonTracerLevel_Error;
    check(QvCommonTracer_open(&tracer, &hTracer) == 0, "open");
    if (isDocuments) {
        makeDocuments(Folder(arguments[1]));
        return 0;
    }
    printMachine();
    const Folder folder;
    if (isGrowth) {
        printGrowth(folder);
    } else if (isPrograms) {
        printPrograms(folder, arguments[1]);
    } else {
        printTable(folder, isJson ? arguments[1] : "");
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
