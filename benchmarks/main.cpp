// Prints what the library's work costs in parts of what the same work costs elsewhere.
//
//     qv_benchmark [--growth] [--json FILE]
//
// --growth shows time and memory for each byte of large documents instead of the table; --json writes the table's rows
// for a program, too.
#include "rows.h"

#include <cstdio>
#include <ctime>
#include <exception>
#include <fstream>
#include <string_view>
#include <thread>

#include <qv_common_c/common_tracer.h>

namespace {

using namespace qv::benchmark;

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
    std::printf("%s, %s, %u cores, %s, %s\n", date, processor().c_str(), std::thread::hardware_concurrency(),
                QV_COMPILER, peers().c_str());
}

void printTable(const Folder& folder, const std::string& jsonName)
{
    Report report;
    const auto documents = makeDocuments(folder);
    for (const Document& document : documents) {
        std::printf("%s: %zu bytes\n", document.name.c_str(), document.text.size());
        for (const auto rows : {textRows, fileRows, recordRows, memoryRows}) {
            rows(report, document);
        }
    }
    std::printf("\n");
    report.print();
    if (!jsonName.empty()) {
        report.writeJson(jsonName);
    }
}

int run(int argc, char* argv[])
{
    bool isGrowth = false;
    std::string jsonName;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--growth") {
            isGrowth = true;
        } else if (argument == "--json" && i + 1 < argc) {
            jsonName = argv[++i];
        } else {
            std::fprintf(stderr, "usage: %s [--growth] [--json FILE]\n", argv[0]);
            return 2;
        }
    }
    // What the peers don't print we don't print either: traces begin at Error, and nothing here fails.
    QvCommonTracerOpenParam_t tracer{};
    tracer.level = QvCommonTracerLevel_Error;
    check(QvCommonTracer_open(&tracer, &hTracer) == 0, "open");
    printMachine();
    const Folder folder;
    if (isGrowth) {
        printGrowth(folder);
    } else {
        printTable(folder, jsonName);
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        return run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
