// A process that saves again and again is killed at random moments. Whatever it was doing, the file is one of the whole
// ones that it writes, and what it may have left beside it is gone after the next save.
#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_transmit.h>

#include "database/test_support.h"
#include "endurance/setting.h"

using namespace qv::test;
namespace fs = std::filesystem;

namespace {

// Not every file system knows files without a name. Where it does a save is killed beside one hardly ever.
constinit bool hasUnnamedFiles = true;

} // namespace

extern "C" [[gnu::visibility("default")]] int openat(int folder, const char* pName, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t);
    va_end(arguments);
    if (!hasUnnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return static_cast<int>(syscall(SYS_openat, folder, pName, flags, mode));
}

namespace {

using Call = int (*)(QvDatabaseHandle_t, const char*);

struct Form {
    const char* pFilename;
    QvDatabaseSettingProtocol_t protocol;
    Call save;
    Call load;
};

constexpr Form kForms[] = {
    {"tuning.json", QvDatabaseSettingProtocol_Standard, QvDatabase_save, QvDatabase_load},
    {"simulator.json", QvDatabaseSettingProtocol_Simulator, QvDatabase_save, QvDatabase_load},
    {"sections.ini", QvDatabaseSettingProtocol_Standard, QvDatabase_save, QvDatabase_load},
    {"image.bin", QvDatabaseSettingProtocol_Standard, QvDatabase_save, QvDatabase_load},
    {"meta.json", QvDatabaseSettingProtocol_Standard, QvDatabase_metaSave, QvDatabase_metaLoad},
};

class Kill : public testing::TestWithParam<bool> {
protected:
    Kill()
    {
        hasUnnamedFiles = GetParam();
        EXPECT_EQ(database_.load(sample("imx477.json")), 0);
    }
    ~Kill() override { hasUnnamedFiles = true; }

    /// What is saved as the one or the other: they differ in their first and last parts.
    void change(int variant) const
    {
        std::strcpy(database_.record<QvDatabaseMisc_t>("MISC").versionNumber, variant == 0 ? "1" : "22.22");
        database_.record<QvDatabaseTransmit_t>("TM").fs.isBmp = variant != 0;
        database_.record<QvDatabaseMeta_t>("MT").chipId = variant == 0 ? 1 : 22222;
        database_.record<QvDatabaseMeta_t>("MT").meanLuma[5].totalMean[24] = static_cast<std::uint32_t>(variant);
    }

    int save(const Form& form) const { return form.save(database_.handle(), (folder_ / form.pFilename).c_str()); }

    /// The file without the date of a text.
    std::string content(const Form& form) const { return undated(readFile(folder_ / form.pFilename)); }

    long files() const { return qv::test::files(folder_ / ""); }

    Database database_;
    TemporaryFolder folder_;
};

TEST_P(Kill, LeavesTheOldFileOrANewOne)
{
    const int kills = isNight() ? 5000 : 150; // and as many on the other system
    std::minstd_rand random(1);
    int newFiles = 0;
    for (const Form& form : kForms) {
        database_.record<QvDatabaseSetting_t>("ST").protocol = form.protocol;
        std::array<std::string, 2> known;
        auto shortest = std::chrono::steady_clock::duration::max();
        for (const int variant : {1, 0, 1, 0}) {
            change(variant);
            const auto begin = std::chrono::steady_clock::now();
            ASSERT_EQ(save(form), 0);
            shortest = std::min(shortest, std::chrono::steady_clock::now() - begin);
            known[static_cast<std::size_t>(variant)] = content(form);
            // What is one of the known contents can be loaded.
            ASSERT_EQ(form.load(database_.handle(), (folder_ / form.pFilename).c_str()), 0);
        }
        ASSERT_NE(known[0], known[1]);
        int isNew = 0;
        int isLeft = 0;
        // On a busy machine a child may not get far in that time; then it gets more.
        long longest = 3 * std::chrono::nanoseconds(shortest).count();
        for (int kill = 0; kill < kills; ++kill) {
            const pid_t child = fork();
            if (child == 0) {
                for (int variant = 1;; variant = 1 - variant) {
                    change(variant);
                    if (save(form) != 0) {
                        _exit(1);
                    }
                }
            }
            std::uniform_int_distribution<long> moment(0, longest);
            std::this_thread::sleep_for(std::chrono::nanoseconds(moment(random)));
            ::kill(child, SIGKILL);
            int status = 0;
            ASSERT_EQ(waitpid(child, &status, 0), child);
            ASSERT_TRUE(WIFSIGNALED(status)) << form.pFilename << ": a save failed";
            const std::string found = content(form);
            ASSERT_TRUE(found == known[0] || found == known[1]) << form.pFilename << " after kill " << kill;
            isNew += found == known[1] ? 1 : 0;
            isLeft += files() > 1 ? 1 : 0;
            longest *= kill % 10 == 9 && isNew == 0 ? 2 : 1;
            ASSERT_EQ(save(form), 0);
            ASSERT_EQ(files(), 1) << form.pFilename << " after kill " << kill;
            ASSERT_EQ(content(form), known[0]);
        }
        std::printf("%-16s %d kills: the new file was found %d times, something beside it %d times\n", form.pFilename,
                    kills, isNew, isLeft);
        newFiles += isNew;
        fs::remove(folder_ / form.pFilename);
    }
    EXPECT_TRUE(newFiles > 0 && newFiles < kills * static_cast<int>(std::size(kForms)))
        << "the moments are not well chosen";
}

INSTANTIATE_TEST_SUITE_P(EachSystem, Kill, testing::Bool(), [](const auto& row) {
    return std::string(row.param ? "WithUnnamedFiles" : "WithoutUnnamedFiles");
});

} // namespace
