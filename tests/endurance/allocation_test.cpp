// Each allocation of each operation refused in turn, once and from then on. Every attempt is a process of its own, forked
// from one in which the operation was never done, so that what is made at a first use is made scarcely, too.
#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <execinfo.h>
#include <fcntl.h>
#include <functional>
#include <new>
#include <numeric>
#include <string>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <qv_common_c/common_logger.h>
#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/protocol_calibration.h>

#include "database/test_support.h"
#include "endurance/scarce_memory.h"
#include "endurance/setting.h"

using namespace qv::test;
namespace fs = std::filesystem;

extern "C" void __gcov_exit() __attribute__((weak)); // there in a build that counts what is run, and called at the end

namespace {

/// Ends a forked process at once, without what its parent does at its end, if that doesn't write any counts.
[[noreturn]] void leave()
{
    if (&__gcov_exit != nullptr) {
        std::exit(0);
    }
    _exit(0);
}

/// What may still be allocated when all is over, by a function that asked for it or for whom it was asked.
struct Kept {
    const char* pFunction;
    bool isLeak; ///< only where the operation failed; else it is made once for the process, whatever the outcome
    const char* pReason;
};
constexpr Kept kKept[] = {
    {"QvDatabase_open", true, "the variable holds what was opened until there, and nothing is released"},
    {"QvDatabaseText_parse", true, "a document whose walk fails is not released"},
    {"QvDatabaseProtocolCalibration_parse", true, "nor is the reader that a calibration's text had for itself"},
    {"QvDatabase_metaLoad", true, "nor is that of frame metadata"},
    {"QvDatabaseInitialization_serialize", true, "with siblings that write no lines: a queue of sections stays open"},
    {"QvCommonTime_timestamp", false, "the C library's time zone"},
    {"QvCommonTracer_file", false, "the streams of a program that opens no tracer"},
};

/// What an operation does, and what must be found afterwards.
struct Operation {
    std::string name;
    std::function<int()> run;
    std::function<std::string()> result;   ///< the same after each success
    std::function<void()> prepare{};       ///< comes before, with memory
    std::string resultOfFailure{};         ///< where a failure leaves something that can be told
    std::function<std::string()> broken{}; ///< names what a failure has broken beside that; empty for nothing
    std::vector<int> statuses{};           ///< of a failure, beside 5
    bool takesRegisters = false;           ///< fills DUMP, whose registers the application is to release
    bool takesNothing = false;             ///< asks for no memory at all
};

constexpr std::size_t kMostNumbers = 8192;

/// What a process tells the one that forked it.
struct Report {
    Demand demand;
    int status;
    int keptForGood;
    std::size_t keptNumber;
    std::array<long, kMostNumbers> kept;
    std::size_t firstsNumber; ///< of each caller
    std::array<long, kMostNumbers> firsts;
    std::size_t resultSize;
    std::array<char, 8U << 20U> result;
    std::array<char, 4000> fault;
};

void tell(Report& report, const std::string& fault)
{
    const std::size_t length = std::strlen(report.fault.data());
    std::snprintf(report.fault.data() + length, report.fault.size() - length, "%s\n", fault.c_str());
}

/// Texts may be long.
std::string shortened(const std::string& text)
{
    return text.size() < 60 ? text : text.substr(0, 60) + "... of " + std::to_string(text.size());
}

class Allocations : public testing::Test {
protected:
    Allocations()
    {
        void* pShared = mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        EXPECT_NE(pShared, MAP_FAILED);
        pReport_ = static_cast<Report*>(pShared);
        std::array<void*, 4> frames{};
        backtrace(frames.data(), 4); // takes memory the first time
    }
    ~Allocations() override { munmap(pReport_, sizeof(Report)); }

    /// Does the operation in a new process with so much memory.
    void attempt(const Operation& operation, long allowed, Refuse refuse, const std::vector<long>& noted,
                 const std::string* pGood)
    {
        new (pReport_) Report{};
        const pid_t child = fork();
        if (child == 0) {
            attemptHere(operation, allowed, refuse, noted, pGood);
            leave();
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        if (WIFSIGNALED(status)) {
            tell(*pReport_, std::string("ended by a signal: ") + strsignal(WTERMSIG(status)));
        }
    }

    /// Every allocation, or in the short setting one for each caller, in both ways.
    void refuseEach(const Operation& operation)
    {
        attempt(operation, LONG_MAX, Refuse::OneOnly, {}, nullptr);
        const long number = pReport_->demand.asked;
        goodStatus_ = pReport_->status;
        goodKept_ = INT_MAX;
        goodKept_ = keptForGood(operation, LONG_MAX, Refuse::OneOnly, nullptr);
        ASSERT_STREQ(pReport_->fault.data(), "") << operation.name;
        const std::string good(pReport_->result.data(), pReport_->resultSize);
        if (operation.takesNothing) {
            EXPECT_EQ(number, 0) << operation.name;
            return;
        }
        ASSERT_GT(number, 0) << operation.name;
        std::vector<long> all(static_cast<std::size_t>(number));
        std::iota(all.begin(), all.end(), 0);
        const std::vector<long> chosen = isNight() ? all : firsts(operation, all);
        long failures = 0;
        for (const Refuse refuse : {Refuse::OneOnly, Refuse::AllFromThenOn}) {
            for (const long allowed : chosen) {
                keptForGood(operation, allowed, refuse, &good);
                failures += pReport_->status != goodStatus_ ? 1 : 0;
                EXPECT_STREQ(pReport_->fault.data(), "")
                    << operation.name << " with " << allowed << " allocations before "
                    << (refuse == Refuse::OneOnly ? "one is refused" : "all are refused");
                if (HasFailure() && !isNight()) {
                    return;
                }
            }
        }
        std::printf("%-28s %6ld allocations, %6zu refused in turn, %6ld of them gave a status\n",
                    operation.name.c_str(), number, 2 * chosen.size(), failures);
    }

private:
    /// One allocation for each way that leads to one.
    std::vector<long> firsts(const Operation& operation, const std::vector<long>& all)
    {
        attempt(operation, LONG_MAX, Refuse::OneOnly, all, nullptr);
        const auto begin = pReport_->firsts.begin();
        return {begin, begin + static_cast<std::ptrdiff_t>(pReport_->firstsNumber)};
    }

    /// An attempt whose kept blocks are looked at one by one, with their callers.
    int keptForGood(const Operation& operation, long allowed, Refuse refuse, const std::string* pGood)
    {
        attempt(operation, allowed, refuse, {}, pGood);
        if (pReport_->keptNumber == 0 || pReport_->fault[0] != 0) {
            return 0;
        }
        const std::vector<long> noted(pReport_->kept.begin(),
                                      pReport_->kept.begin() + static_cast<std::ptrdiff_t>(pReport_->keptNumber));
        attempt(operation, allowed, refuse, noted, pGood);
        if (pReport_->keptForGood > goodKept_) {
            tell(*pReport_, "keeps more for good than a success does");
        }
        return pReport_->keptForGood;
    }

    void attemptHere(const Operation& operation, long allowed, Refuse refuse, const std::vector<long>& noted,
                     const std::string* pGood)
    {
        Report& report = *pReport_;
        dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO); // lines of operations without a tracer
        if (operation.prepare) {
            operation.prepare();
        }
        noteCallers(noted);
        int status = -1;
        report.demand = runScarcely(allowed, refuse, [&] { status = operation.run(); });
        report.status = status;
        const std::vector<long> firsts = firstOfEachCaller();
        report.firstsNumber = std::min(firsts.size(), kMostNumbers);
        std::copy_n(firsts.begin(), report.firstsNumber, report.firsts.begin());
        if (pGood == nullptr) {
            const std::string result = operation.result();
            report.resultSize = std::min(result.size(), report.result.size());
            std::memcpy(report.result.data(), result.data(), report.resultSize);
        } else if (report.demand.refused == 0) {
            tell(report, "nothing was refused");
        } else if (status == goodStatus_) {
            if (operation.result() != *pGood) {
                tell(report, "status " + std::to_string(status) + ", but another result: " +
                                 shortened(operation.result()) + " where it should be " + shortened(*pGood));
            }
        } else {
            judgeFailure(operation, status);
        }
        if (pGood != nullptr && status != goodStatus_) {
            if (operation.takesRegisters) {
                releaseRegisters();
            }
            const int second = operation.run();
            if (second != goodStatus_ || operation.result() != *pGood) {
                tell(report, "done again with enough memory it gives status " + std::to_string(second) + ", result " +
                                 shortened(operation.result()));
            }
        }
        closeAll();
        judgeKept(status);
    }

    void judgeFailure(const Operation& operation, int status) const
    {
        if (status != 5 && std::ranges::find(operation.statuses, status) == operation.statuses.end()) {
            tell(*pReport_, "status " + std::to_string(status));
        }
        if (!operation.resultOfFailure.empty() && operation.result() != operation.resultOfFailure) {
            tell(*pReport_, "status " + std::to_string(status) + " leaves " + shortened(operation.result()));
        }
        const std::string broken = operation.broken ? operation.broken() : "";
        if (!broken.empty()) {
            tell(*pReport_, "status " + std::to_string(status) + ": " + broken);
        }
    }

    void judgeKept(int status) const
    {
        Report& report = *pReport_;
        const std::vector<long> kept = keptBlocks();
        report.keptNumber = std::min(kept.size(), kMostNumbers);
        std::copy_n(kept.begin(), report.keptNumber, report.kept.begin());
        for (const long number : kept) {
            const std::string callers = callersOf(number);
            if (callers.empty()) {
                continue; // not noted in this attempt
            }
            const auto known = std::ranges::find_if(kKept, [&](const Kept& row) {
                return (" " + callers).find(" " + std::string(row.pFunction) + " ") != std::string::npos &&
                       (!row.isLeak || status != 0);
            });
            if (known == std::end(kKept)) {
                tell(report, "status " + std::to_string(status) + " loses a block of " + callers);
            } else {
                report.keptForGood += known->isLeak ? 0 : 1;
            }
        }
    }

protected:
    /// The application's own.
    void releaseRegisters() const
    {
        void* pData = nullptr;
        if (database_ != 0 && QvDatabase_query(database_, "DUMP", &pData) == 0) {
            auto* pDump = static_cast<QvDatabaseDump_t*>(pData);
            std::free(pDump->pRegisters);
            pDump->pRegisters = nullptr;
            pDump->registerNumber = 0;
        }
    }

    void closeAll()
    {
        releaseRegisters();
        if (database_ != 0 && QvDatabase_close(&database_) != 0) {
            tell(*pReport_, "can't be closed");
        }
    }

    /// Bytes of all records but those that hold addresses, and the registers of DUMP.
    std::string records() const
    {
        void* pData = nullptr;
        if (QvDatabase_query(database_, "DUMP", &pData) != 0) {
            return "";
        }
        const auto* pDump = static_cast<QvDatabaseDump_t*>(pData);
        return recordsOf(database_).append(
            reinterpret_cast<const char*>(pDump->pRegisters),
            pDump->pRegisters == nullptr ? 0 : pDump->registerNumber * sizeof(QvDatabaseRegister_t));
    }

    QvDatabaseHandle_t database_ = 0;

private:
    Report* pReport_ = nullptr;
    int goodStatus_ = 0;
    int goodKept_ = 0;
};

// The first in this file: no test before it may have opened one, with the traces going where they go by themselves.
TEST_F(Allocations, Opening)
{
    refuseEach({
        .name = "open",
        .run =
            [this] {
                database_ = 0; // what a failed one leaves is lost
                QvDatabaseOpenParam_t param{};
                const int status = QvDatabase_open(&param, &database_);
                return status;
            },
        .result = [this] { return database_ == 0 ? "no handle" : records(); },
        .statuses = {13}, // what a record's reset says of a record that isn't there
    });
}

class AllocationsOpen : public Allocations {
protected:
    AllocationsOpen()
    {
        QvCommonTracerOpenParam_t tracer{};
        tracer.level = QvCommonTracerLevel_Debug;
        tracer.pWrite = [](void*, QvCommonTracerLevel_t, const char*, size_t) { return 0; };
        EXPECT_EQ(QvCommonTracer_open(&tracer, &hTracer), 0);
        QvDatabaseOpenParam_t param{};
        EXPECT_EQ(QvDatabase_open(&param, &database_), 0);
    }
    ~AllocationsOpen() override
    {
        closeAll();
        QvCommonTracer_close(&hTracer);
    }

    QvDatabaseSettingProtocol_t& protocol() const
    {
        void* pData = nullptr;
        EXPECT_EQ(QvDatabase_query(database_, "ST", &pData), 0);
        return static_cast<QvDatabaseSetting_t*>(pData)->protocol;
    }

    Operation loading(const std::string& name, const fs::path& file, std::vector<int> statuses = {}) const
    {
        return {.name = name,
                .run = [this, file] { return QvDatabase_load(database_, file.c_str()); },
                .result = [this] { return records(); },
                .statuses = std::move(statuses),
                .takesRegisters = true};
    }

    using Call = int (*)(QvDatabaseHandle_t, const char*);

    /// A save over an old file, the only one in its folder.
    Operation saving(const std::string& name, const std::string& filename, Call call = QvDatabase_save)
    {
        const fs::path file = folder_ / filename;
        return {.name = name,
                .run = [this, file, call] { return call(database_, file.c_str()); },
                .result = [file] { return undated(readFile(file)); },
                .prepare = [file] { writeFile(file, "old"); },
                .resultOfFailure = "old",
                .broken =
                    [folder = file.parent_path(), number = ++files_] {
                        return files(folder) == number ? "" : "there are " + std::to_string(files(folder)) + " files";
                    }};
    }

    TemporaryFolder folder_;
    long files_ = 0;
};

/// Calibration, classes and tuning, with members that are missing, twice there or of another kind, and a register list.
constexpr const char* kSmallDocument = R"({"version": {"versionNumber": "1"}, "header": {"creator": "me",
    "resolution": [{"width": 640, "framerate": [{"fps": 1}]}]}, "system": {"AFPS": {"aFpsDefault": "30"}},
    "sensor": {"LSC": [{"name": "a", "LSC_sectors": 5}, {}], "CC": [{}]},
    "root": [{"classname": "AGamma64", "enable": 1, "tables": [{}, {"gains": [1.5]}]},
        {"driver": [{"class": "CGreenEqu", "threshold": 8.5}, {"class": "?"}]}],
    "tuning": {"GE": {"threshold": 2.5, "threshold": 3.5, "gone": [[]]}, "AGC_2": {"tables": [{"gain": [1, 2]}, {}]},
        "DUMP": {"registers": [{"address": 5}, {}, {"name": "c"}]}, "MISC": {}}} // end
)";

TEST_F(AllocationsOpen, Loading)
{
    writeFile(folder_ / "small.json", kSmallDocument);
    // 13: there was no memory for the registers of DUMP, and so no record to read into
    refuseEach(loading("load small", folder_ / "small.json", {13}));
    refuseEach(loading("load tuning, calibration", sample("imx477.json"), {13}));
    // With a value of its own for each member, or what is not read would not be missed.
    std::string sections = readFile(sample("imx477.ini"));
    for (std::size_t at = sections.find(" = "); at != std::string::npos; at = sections.find(" = ", at + 1)) {
        const std::size_t end = sections.find('\n', at);
        const bool isNumber = sections[at + 3] >= '0' && sections[at + 3] <= '9';
        sections.replace(at + 3, end - at - 3, isNumber ? "7" : "true");
    }
    writeFile(folder_ / "sections.ini", sections);
    refuseEach(loading("load initialization", folder_ / "sections.ini"));
    writeFile(folder_ / "broken.json", R"({"version": {"versionNumber": "1"}, "tuning": [1,)");
    refuseEach(loading("load broken document", folder_ / "broken.json"));
    writeFile(folder_ / "tag.json", "<header/>");
    refuseEach(loading("load tag", folder_ / "tag.json"));
    Operation parsing = loading("parse calibration", "");
    parsing.run = [this] {
        void* pData = nullptr;
        const int status = QvDatabase_query(database_, "CLB", &pData);
        return status != 0
                   ? status
                   : QvDatabaseProtocolCalibration_parse(kSmallDocument, static_cast<QvDatabaseCalibration_t*>(pData));
    };
    refuseEach(parsing);

    ASSERT_EQ(QvDatabase_load(database_, sample("imx477.json").c_str()), 0);
    protocol() = QvDatabaseSettingProtocol_Simulator;
    ASSERT_EQ(QvDatabase_save(database_, (folder_ / "simulator.json").c_str()), 0);
    ASSERT_EQ(QvDatabase_save(database_, (folder_ / "image.bin").c_str()), 0);
    ASSERT_EQ(QvDatabase_metaSave(database_, (folder_ / "meta_simulator.json").c_str()), 0);
    protocol() = QvDatabaseSettingProtocol_Standard;
    ASSERT_EQ(QvDatabase_metaSave(database_, (folder_ / "meta.json").c_str()), 0);
    releaseRegisters();
    refuseEach(loading("load simulator", folder_ / "simulator.json"));
    refuseEach(loading("load image", folder_ / "image.bin"));
    for (const char* pName : {"meta.json", "meta_simulator.json"}) {
        Operation operation = loading(std::string("load ") + pName, "");
        operation.run = [this, file = folder_ / pName] { return QvDatabase_metaLoad(database_, file.c_str()); };
        refuseEach(operation);
    }
}

TEST_F(AllocationsOpen, Saving)
{
    ASSERT_EQ(QvDatabase_load(database_, sample("imx477.json").c_str()), 0);
    writeFile(folder_ / "small.json", kSmallDocument);
    ASSERT_EQ(QvDatabase_load(database_, (folder_ / "small.json").c_str()), 0);
    fs::remove(folder_ / "small.json");
    refuseEach(saving("save tuning, calibration", "file.json"));
    refuseEach(saving("save initialization", "file.ini"));
    refuseEach(saving("save image", "file.bin"));
    refuseEach(saving("save meta", "meta.json", QvDatabase_metaSave));
    protocol() = QvDatabaseSettingProtocol_Simulator;
    refuseEach(saving("save simulator", "simulator.json"));
    refuseEach(saving("save meta simulator", "meta_simulator.json", QvDatabase_metaSave));
}

TEST_F(AllocationsOpen, WhatTakesNoMemory)
{
    const auto queryAll = [this] {
        int status = 0;
        for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
            void* pData = nullptr;
            status += QvDatabase_query(database_, pCategory->pKey, &pData);
        }
        return status;
    };
    const auto walkCatalog = [] {
        std::size_t fields = 0;
        for (int i = 0; i < QvDatabaseCatalogDocument_Sum; ++i) {
            fields += fieldNumber(static_cast<QvDatabaseCatalogDocument_t>(i));
        }
        return fields > 1000 ? 0 : 1;
    };
    const std::pair<const char*, std::function<int()>> rows[] = {
        {"reset", [this] { return QvDatabase_reset(database_); }},
        {"info", [this] { return QvDatabase_info(database_); }},
        {"query", queryAll},
        {"catalog", walkCatalog},
        {"close", [this] { return QvDatabase_close(&database_); }},
    };
    for (const auto& [pName, run] : rows) {
        refuseEach({.name = pName, .run = run, .result = [] { return std::string(); }, .takesNothing = true});
    }
}

} // namespace
