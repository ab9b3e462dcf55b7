// Disks that are full, closed or not there, and files that are none.
#include <fcntl.h>
#include <functional>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "database/test_support.h"
#include "endurance/setting.h"
#include "leave.h"

using namespace qv::test;
namespace fs = std::filesystem;

namespace {

constexpr const char* kNames[] = {"file.json", "file.ini", "file.bin"};
constexpr uid_t kNobody = 65534;

class Disk : public testing::Test {
protected:
    Disk()
    {
        EXPECT_EQ(database_.load(sample("imx477.json")), 0);
        QvCommonTracer_close(&hTracer);
        QvCommonTracerOpenParam_t param{};
        param.level = QvCommonTracerLevel_Sum; // the failures are meant
        EXPECT_EQ(QvCommonTracer_open(&param, &hTracer), 0);
    }
    ~Disk() override { QvCommonTracer_close(&hTracer); }

    int save(const fs::path& file) const { return QvDatabase_save(database_.handle(), file.c_str()); }
    int metaSave(const fs::path& file) const { return QvDatabase_metaSave(database_.handle(), file.c_str()); }

    /// All forms over old files in a folder fail with this status and leave the old files alone. Empty, or what went
    /// wrong.
    std::string failingSaves(const fs::path& folder, int expected) const
    {
        const long before = files(folder);
        std::string faults;
        const auto judge = [&](const char* pName, int status) {
            if (status != expected) {
                faults += std::string(pName) + " gives " + std::to_string(status) + "; ";
            }
            if (readFile(folder / pName) != "old") {
                faults += std::string(pName) + " is not the old one; ";
            }
        };
        for (const char* pName : kNames) {
            judge(pName, save(folder / pName));
        }
        judge("meta.json", metaSave(folder / "meta.json"));
        return files(folder) == before ? faults : faults + "something stands beside them";
    }

    static void makeOldFiles(const fs::path& folder)
    {
        for (const char* pName : kNames) {
            writeFile(folder / pName, "old");
        }
        writeFile(folder / "meta.json", "old");
    }

    /// Runs in a process of its own, which may change what it likes. The text that it gives is the answer.
    static std::string inChild(const std::function<std::string()>& work)
    {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0) {
            const std::string text = work();
            const ssize_t written = ::write(ends[1], text.data(), text.size());
            leave(written == static_cast<ssize_t>(text.size()) ? 0 : 1);
        }
        ::close(ends[1]);
        std::string answer;
        char part[512];
        for (ssize_t count = 0; (count = ::read(ends[0], part, sizeof part)) > 0;) {
            answer.append(part, static_cast<std::size_t>(count));
        }
        ::close(ends[0]);
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        return answer;
    }

    /// As root at once; else as the root of a space of users of its own, where that is allowed.
    static bool hasOwnMounts()
    {
        const std::string user = "0 " + std::to_string(geteuid()) + " 1\n";
        const std::string group = "0 " + std::to_string(getegid()) + " 1\n";
        if (unshare(CLONE_NEWNS) == 0) {
            return true;
        }
        return unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && tellProcess("/proc/self/setgroups", "deny") &&
               tellProcess("/proc/self/uid_map", user) && tellProcess("/proc/self/gid_map", group);
    }
    static bool tellProcess(const char* pFilename, const std::string& text)
    {
        const int file = ::open(pFilename, O_WRONLY | O_CLOEXEC);
        const bool isTold = ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
        ::close(file);
        return isTold;
    }

    Database database_;
    TemporaryFolder folder_;
};

TEST_F(Disk, AFullOneKeepsTheOldFiles)
{
    const std::string answer = inChild([this]() -> std::string {
        if (!hasOwnMounts()) {
            return "skip";
        }
        const fs::path folder = folder_ / "";
        if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("none", folder.c_str(), "tmpfs", 0, "size=20k") != 0) {
            return "skip";
        }
        makeOldFiles(folder);
        std::string faults;
        for (int turn = 0; turn < 3; ++turn) { // what a failure left would fill the disk further
            writeFile(folder / "filler", std::string(4096, 'x'));
            faults += failingSaves(folder, 12);
        }
        fs::remove(folder / "filler");
        return faults;
    });
    if (answer == "skip") {
        GTEST_SKIP() << "no file system can be mounted here";
    }
    EXPECT_EQ(answer, "");
}

TEST_F(Disk, ALimitOnTheSizeOfFilesIsAStatusAndNoSignal)
{
    makeOldFiles(folder_ / "");
    for (const rlim_t limit : {rlim_t{0}, rlim_t{1000}, rlim_t{4000}}) {
        const std::string answer = inChild([&] {
            const rlimit size = {limit, limit};
            return setrlimit(RLIMIT_FSIZE, &size) == 0 ? failingSaves(folder_ / "", 12) : "no limit";
        });
        EXPECT_EQ(answer, "") << limit;
    }
}

TEST_F(Disk, WhatMayNotBeWrittenStays)
{
    makeOldFiles(folder_ / "");
    const auto withoutRights = [](const std::function<std::string()>& work) {
        return inChild([&]() -> std::string {
            // Root may do everything.
            if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
                return "rights can't be given up";
            }
            return work();
        });
    };
    const fs::path folder = folder_ / "";
    fs::permissions(folder.parent_path(), fs::perms(0555)); // a folder that takes no new file
    EXPECT_EQ(withoutRights([&] { return failingSaves(folder, 4); }), "");
    fs::permissions(folder.parent_path(), fs::perms(0777));
    for (const fs::directory_entry& file : fs::directory_iterator(folder)) {
        fs::permissions(file, fs::perms(0444)); // files that may not be written
    }
    EXPECT_EQ(withoutRights([&] { return failingSaves(folder, 4); }), "");
    fs::permissions(folder.parent_path(), fs::perms(0700));
}

TEST_F(Disk, ANameDecidesTheStatusBeforeAnyForm)
{
    fs::create_directory(folder_ / "folder");
    fs::create_symlink("loop", folder_ / "loop");
    writeFile(folder_ / "file", "");
    for (const std::string name : kNames) {
        fs::create_directory(folder_ / name);
        const struct {
            const char* pWhat;
            fs::path file;
            int saved;
            int loaded;
        } rows[] = {
            {"no folder", folder_ / "none" / name, 3, 3},
            {"a folder", folder_ / name, 9, 9},
            {"below a loop", folder_ / "loop" / name, 3, 3},
            {"below a file", folder_ / "file" / name, 3, 3},
            {"longer than a name may be", folder_ / (std::string(300, 'n') + name), 3, 3},
            {"as long as a name may be", folder_ / (std::string(255 - name.size(), 'n') + name), 0, 0},
            {"a new file", folder_ / "folder" / name, 0, 0},
        };
        for (const auto& row : rows) {
            EXPECT_EQ(save(row.file), row.saved) << row.pWhat << ", " << name;
            EXPECT_EQ(database_.load(row.file), row.loaded) << row.pWhat << ", " << name;
        }
        const fs::path full = folder_ / ("full_" + name);
        fs::create_symlink("/dev/full", full);
        EXPECT_EQ(save(full), 12);
        EXPECT_EQ(metaSave(full), 12);
        EXPECT_TRUE(fs::is_symlink(full));
        // A hard link keeps the old content under its own name: the new file is another one.
        const fs::path file = folder_ / "folder" / name;
        const fs::path link = folder_ / ("link_" + name);
        writeFile(file, "old");
        fs::create_hard_link(file, link);
        EXPECT_EQ(save(file), 0);
        EXPECT_EQ(readFile(link), "old");
    }
    EXPECT_EQ(files(folder_ / "folder"), 3);
    EXPECT_EQ(files(folder_ / ""), 15); // and nothing beside those
}

} // namespace
