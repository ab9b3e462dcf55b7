// Time and memory for each byte, for documents of all sizes: what they cost must grow as they do, and no faster.
#include "rows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <qv_database_c/database_dump.h>

namespace qv::benchmark {
namespace {

constexpr double kMegabyte = 1e6;
constexpr double kSizes[] = {0.5, 1, 2, 4, 8, 16, 32};
constexpr int kRounds = 7;

/// The sample with as many of its own first schedules behind it as it takes, under a member that is read and passed over.
std::string grownText(double size)
{
    std::string text = readFile(QV_SOURCE_DIR "/examples/documents/imx477.json");
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
    std::size_t size = 0;
    std::size_t peak = 0;
    std::vector<double> times = {};

    double nanoseconds() const
    {
        auto sorted = times;
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2] / static_cast<double>(size);
    }
    double bytes() const { return static_cast<double>(peak) / static_cast<double>(size); }
};

void measure(Point& point, const Work& work)
{
    if (point.times.empty()) {
        point.peak = peakOf(work);
    }
    const double begin = now();
    work();
    point.times.push_back(now() - begin);
}

struct Line {
    const char* pName;
    std::vector<Point> points;
};

void print(const Line& line)
{
    std::printf("\n| %s | bytes | ns a byte | peak bytes a byte |\n|---|---|---|---|\n", line.pName);
    double least = line.points.front().nanoseconds();
    double most = least;
    for (const Point& point : line.points) {
        std::printf("| | %zu | %.3f | %.2f |\n", point.size, point.nanoseconds(), point.bytes());
        least = std::min(least, point.nanoseconds());
        most = std::max(most, point.nanoseconds());
    }
    std::printf("\nslowest byte / fastest byte: %.2f\n", most / least);
}

} // namespace

void printGrowth(const Folder& folder)
{
    Line load{"load, grown by members that are passed over", {}};
    Line loadRegisters{"load, grown by registers", {}};
    Line save{"save, grown by registers", {}};
    const std::string grown = folder.file("grown.json");
    const std::string registers = folder.file("registers.json");
    constexpr double kRegister = 134; // bytes of text, about
    for (const double size : kSizes) {
        const std::string text = grownText(size * kMegabyte);
        writeFile(grown, text);
        Database source(QV_SOURCE_DIR "/examples/documents/imx477.json");
        growRegisters(source, static_cast<std::size_t>((size * kMegabyte - 429e3) / kRegister));
        source.save(registers);
        const std::size_t written = readFile(registers).size();

        Point loadPoint{text.size()};
        Point registersPoint{written};
        Point savePoint{written};
        for (int round = 0; round < kRounds; ++round) {
            Database database;
            measure(loadPoint, [&] { database.load(grown); });
            Database another;
            measure(registersPoint, [&] { another.load(registers); });
            measure(savePoint, [&] { source.save(registers); });
        }
        load.points.push_back(loadPoint);
        loadRegisters.points.push_back(registersPoint);
        save.points.push_back(savePoint);
    }
    for (const Line* pLine : {&load, &loadRegisters, &save}) {
        print(*pLine);
    }
}

} // namespace qv::benchmark
