// Saves that are killed or held up on their way. The system calls of a save pass through here, so that a process can be
// stopped at each of them.
#include <qv_common_c/common_buffer.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <fcntl.h>
#include <functional>
#include <iterator>
#include <string>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "common/files.h"

namespace {

using namespace qv::test;

void pass() {}

// What happens in front of a system call; set in child processes alone.
void (*atFlush)() = pass;
void (*atRename)() = pass;

// What the system offers.
enum class Offer { All, NamesByProcAlone, NoNames, NoUnnamedFiles };
Offer offer = Offer::All;

std::atomic<int> madeWithName = 0; // files that had a name from the start

void die()
{
    kill(getpid(), SIGKILL);
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] int fsync(int descriptor)
{
    atFlush();
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

[[gnu::visibility("default")]] int openat(int folder, const char* pName, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t);
    va_end(arguments);
    if (offer == Offer::NoUnnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    madeWithName += (flags & O_CREAT) != 0 ? 1 : 0;
    return static_cast<int>(syscall(SYS_openat, folder, pName, flags, mode));
}

[[gnu::visibility("default")]] int linkat(int from, const char* pFrom, int to, const char* pTo, int flags) noexcept
{
    const bool isByProc = (flags & AT_EMPTY_PATH) == 0;
    if (offer == Offer::NoNames || (offer == Offer::NamesByProcAlone && !isByProc)) {
        errno = ENOENT;
        return -1;
    }
    return static_cast<int>(syscall(SYS_linkat, from, pFrom, to, pTo, flags));
}

[[gnu::visibility("default")]] int renameat(int from, const char* pFrom, int to, const char* pTo) noexcept
{
    atRename();
    return static_cast<int>(syscall(SYS_renameat2, from, pFrom, to, pTo, 0));
}

} // extern "C"

namespace {

class CommonBufferKill : public testing::TestWithParam<Offer> {
protected:
    CommonBufferKill() { offer = GetParam(); }
    ~CommonBufferKill() override { offer = Offer::All; }

    int save(std::string content) const
    {
        QvCommonBuffer_t buffer = {content.data(), 0, content.size(), nullptr, false};
        return QvCommonBuffer_save2(&buffer, file_.c_str(), 0);
    }
    std::string read() const { return readFile(file_); }
    long files() const { return folder_.files(); }

    // A child process that saves after some preparation. Its exit status is that of the save.
    pid_t saveInChild(const char* pContent, const std::function<void()>& prepare) const
    {
        const pid_t child = fork();
        if (child == 0) {
            prepare();
            _exit(save(pContent));
        }
        return child;
    }
    // One that stands still with all written, in front of the rename.
    pid_t stopInChild(const char* pContent) const
    {
        const pid_t child = saveInChild(pContent, [] { atRename = [] { raise(SIGSTOP); }; });
        EXPECT_EQ(waitpid(child, nullptr, WUNTRACED), child);
        return child;
    }
    static int waitFor(pid_t child)
    {
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_ / std::string(255, 'f'); // as long as a name may be
};

TEST_P(CommonBufferKill, WhatAKilledSaveLeavesGoesWithTheNext)
{
    ASSERT_EQ(save("old"), 0);
    for (void (**pPlace)() : {&atFlush, &atRename}) {
        const int status = waitFor(saveInChild("never", [pPlace] { *pPlace = die; }));
        ASSERT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(read(), "old");
        EXPECT_EQ(files(), pPlace == &atFlush && GetParam() != Offer::NoUnnamedFiles ? 1 : 2);
        EXPECT_EQ(save("old"), 0);
        EXPECT_EQ(files(), 1);
    }
    // Several at once: each found its predecessors at work. Some names become free.
    for (const std::array<int, 3> signals :
         {std::array{SIGKILL, SIGCONT, SIGKILL}, std::array{SIGCONT, SIGCONT, SIGKILL}}) {
        const pid_t children[] = {stopInChild("never"), stopInChild("never"), stopInChild("never")};
        EXPECT_EQ(files(), 4);
        for (size_t number = 0; number < std::size(children); ++number) {
            kill(children[number], signals[number]);
            waitFor(children[number]);
        }
        EXPECT_EQ(read(), "never");
        EXPECT_EQ(files(), 1 + std::count(signals.begin(), signals.end(), SIGKILL));
        EXPECT_EQ(save("new"), 0);
        EXPECT_EQ(read(), "new");
        EXPECT_EQ(files(), 1);
    }
}

// A file without a name leaves nothing behind, so it is what a save takes wherever it can get its name later.
TEST_P(CommonBufferKill, AFileGetsItsNameLateWhereItCan)
{
    madeWithName = 0;
    ASSERT_EQ(save("new"), 0);
    EXPECT_EQ(madeWithName, GetParam() == Offer::All || GetParam() == Offer::NamesByProcAlone ? 0 : 1);
}

TEST_P(CommonBufferKill, ASaveThatIsStillAtWorkIsLeftAlone)
{
    ASSERT_EQ(save("old"), 0);
    const pid_t child = stopInChild("late");
    EXPECT_EQ(save("new"), 0);
    EXPECT_EQ(read(), "new");
    EXPECT_EQ(files(), 2);
    kill(child, SIGCONT);
    EXPECT_EQ(waitFor(child), 0);
    EXPECT_EQ(read(), "late");
    EXPECT_EQ(files(), 1);
}

TEST_P(CommonBufferKill, ManyMaySaveAtOnce)
{
    const std::string contents[] = {std::string(100000, 'a'), std::string(200000, 'b'), std::string(50000, 'c')};
    std::vector<std::thread> threads;
    for (const std::string& content : contents) {
        threads.emplace_back([&] {
            for (int turn = 0; turn < 20; ++turn) {
                EXPECT_EQ(save(content), 0);
                const std::string found = read();
                EXPECT_NE(std::find(std::begin(contents), std::end(contents), found), std::end(contents));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(files(), 1);
}

INSTANTIATE_TEST_SUITE_P(EachSystem, CommonBufferKill,
                         testing::Values(Offer::All, Offer::NamesByProcAlone, Offer::NoNames, Offer::NoUnnamedFiles));

} // namespace
