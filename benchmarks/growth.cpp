// Time and memory for each byte, for documents of all sizes: what they cost must grow as they do, and no faster.
#include "rows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>

#include <qv_database_c/database_dump.h>

namespace qv::benchmark {
namespace {

constexpr double kMegabyte = 1e6;
constexpr double kSizes[] = {0.5, 1, 2, 4, 8, 16, 32};
constexpr double kRegister = 127; // bytes of text that a register takes, about
constexpr int kRounds = 5;
constexpr const char* kSample = QV_SOURCE_DIR "/examples/documents/imx477.json";

/// The sample with as many of its own first schedules behind it as it takes, under a member that is read and passed over.
std::string grownText(double size)
{
    std::string text = readFile(kSample);
    const std::size_t begin = text.find("\"tables\": [") + std::strlen("\"tables\": [");
    const std::string schedules = text.substr(begin, text.find("}]", begin) + 1 - begin);
    text.erase(text.rfind('}'));
    text += ",\n  \"history\": [";
    const char* pSeparator = "";
    while (static_cast<double>(text.size()) < size) {
        text += pSeparator + schedules;
        pSeparator = ", ";
    }
    return text + "]\n}\n";
}

/// Only the list of registers has no limit among what the database holds itself.
void growRegisters(const Database& database, std::size_t number)
{
    auto* pDump = static_cast<QvDatabaseDump_t*>(database.record("DUMP"));
    std::free(pDump->pRegisters);
    pDump->pRegisters = static_cast<QvDatabaseRegister_t*>(std::calloc(number, sizeof(QvDatabaseRegister_t)));
    check(pDump->pRegisters != nullptr, "calloc");
    pDump->registerNumber = number;
    for (std::size_t i = 0; i < number; ++i) {
        QvDatabaseRegister_t& entry = pDump->pRegisters[i];
        std::snprintf(entry.address, sizeof entry.address, "0x%06x", static_cast<unsigned>(4 * i) & 0xffffffU);
        std::snprintf(entry.value, sizeof entry.value, "0x%04x", static_cast<unsigned>(2654435761U * i) & 0xffffU);
        entry.isReadAction = i % 2 == 0;
    }
}

/// One piece of work on a document of one size.
struct Point {
    std::size_t size;
    std::size_t peak;
    std::vector<double> times = {};

    double nanoseconds() const
    {
        auto sorted = times;
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2] / static_cast<double>(size);
    }
};

void measure(Point& point, const Work& work)
{
    work(); // finds caches and heap as a document of another size left them
    const double begin = now();
    work();
    point.times.push_back(now() - begin);
}

void print(const char* pWork, const std::vector<Point>& points)
{
    std::printf("\n| %s | ns a byte | peak bytes a byte |\n|---|---|---|\n", pWork);
    for (const Point& point : points) {
        std::printf("| %.1f MB | %.2f | %.2f |\n", static_cast<double>(point.size) / kMegabyte, point.nanoseconds(),
                    static_cast<double>(point.peak) / static_cast<double>(point.size));
    }
    std::printf("\nA byte of the largest takes %.2f times as long as one of the smallest.\n",
                points.back().nanoseconds() / points.front().nanoseconds());
}

} // namespace

void printGrowth(const Folder& folder)
{
    std::vector<Point> loads;
    std::vector<Point> registerLoads;
    std::vector<Point> registerSaves;
    std::vector<std::unique_ptr<Database>> databases;
    const std::string output = folder.file("output.json");
    const auto grown = [&](std::size_t i) { return folder.file("grown" + std::to_string(i) + ".json"); };
    const auto registers = [&](std::size_t i) { return folder.file("registers" + std::to_string(i) + ".json"); };
    for (std::size_t i = 0; i < std::size(kSizes); ++i) {
        writeFile(grown(i), grownText(kSizes[i] * kMegabyte));
        loads.push_back({readFile(grown(i)).size(), peakOf("load " + grown(i))});

        Database& database = *databases.emplace_back(std::make_unique<Database>(kSample));
        const double room = kSizes[i] * kMegabyte - static_cast<double>(readFile(kSample).size());
        growRegisters(database, static_cast<std::size_t>(room / kRegister));
        database.save(registers(i));
        const std::size_t size = readFile(registers(i)).size();
        registerLoads.push_back({size, peakOf("load " + registers(i))});
        registerSaves.push_back({size, peakOf("save " + registers(i) + " " + output)});
    }
    for (int round = 0; round < kRounds; ++round) { // sizes in turns, so that a disturbance meets all of them
        for (std::size_t i = 0; i < std::size(kSizes); ++i) {
            Database first;
            measure(loads[i], [&] { first.load(grown(i)); });
            Database second;
            measure(registerLoads[i], [&] { second.load(registers(i)); });
            measure(registerSaves[i], [&] { databases[i]->save(output); });
        }
    }
    print("load, grown by members that are passed over", loads);
    print("load, grown by registers", registerLoads);
    print("save, grown by registers", registerSaves);
}

} // namespace qv::benchmark
