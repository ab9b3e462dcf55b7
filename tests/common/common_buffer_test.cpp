#include <qv_common_c/common_buffer.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "common/files.h"

namespace {

using namespace qv::test;
namespace fs = std::filesystem;

int save(const fs::path& path, std::string content, size_t size = 0)
{
    QvCommonBuffer_t buffer = {content.data(), 1, content.size(), nullptr, false};
    return QvCommonBuffer_save2(&buffer, path.c_str(), size);
}

mode_t mode(const fs::path& path)
{
    struct stat state = {};
    EXPECT_EQ(stat(path.c_str(), &state), 0);
    return state.st_mode;
}

// Each test has a folder of its own.
class CommonBuffer : public testing::Test {
protected:
    ~CommonBuffer() override { QvCommonBuffer_clear(&buffer_); }

    // The content after a load that succeeds, with its zero byte behind it.
    std::string load(const fs::path& path, size_t offset = 0, size_t size = 0)
    {
        buffer_.offset = 99;
        EXPECT_EQ(QvCommonBuffer_load2(path.c_str(), offset, size, &buffer_), 0) << path;
        EXPECT_EQ(buffer_.offset, 0U);
        EXPECT_EQ(buffer_.pBegin[buffer_.size], '\0');
        return {buffer_.pBegin, buffer_.size};
    }
    fs::path makePipe() const
    {
        fs::path path = folder_ / "pipe";
        EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
        return path;
    }

    TemporaryFolder folder_;
    QvCommonBuffer_t buffer_ = {};
};

TEST_F(CommonBuffer, OwnsItsContentOnlyWhenAllocated)
{
    QvCommonBuffer_t* pBuffer = nullptr;
    ASSERT_EQ(QvCommonBuffer_create(&pBuffer), 0);
    EXPECT_EQ(QvCommonBuffer_create(&pBuffer), 13);
    char text[] = "not of the heap";
    *pBuffer = {text, 1, 2, text, false};
    EXPECT_EQ(QvCommonBuffer_clear(pBuffer), 0);
    EXPECT_TRUE(pBuffer->pBegin == nullptr && pBuffer->size == 0 && pBuffer->offset == 0 && !pBuffer->pUserData);
    pBuffer->pBegin = static_cast<char*>(std::malloc(8));
    pBuffer->isAllocated = true;
    EXPECT_EQ(QvCommonBuffer_delete(&pBuffer), 0);
    EXPECT_EQ(QvCommonBuffer_delete(&pBuffer), 13);
    EXPECT_EQ(QvCommonBuffer_delete(nullptr), 13);
}

TEST_F(CommonBuffer, SavesAndLoadsAllOrAPart)
{
    const fs::path path = folder_ / "file";
    const std::string content = std::string("a\0b", 3) + std::string(10000, 'x') + "z";
    EXPECT_EQ(save(path, content), 0);
    EXPECT_EQ(load(path), content);
    EXPECT_EQ(load(path, 1, 3), std::string("\0bx", 3));
    EXPECT_EQ(load(path, 10002, 100), "xz");
    EXPECT_EQ(load(path, SIZE_MAX, SIZE_MAX), "");
    EXPECT_EQ(save(path, "abcdef", 2), 0);
    EXPECT_EQ(load(path), "ab");
    EXPECT_EQ(save(path, "abc", 4), 6);
    EXPECT_EQ(load(path), "ab");
    QvCommonBuffer_t empty = {};
    EXPECT_EQ(QvCommonBuffer_save2(&empty, path.c_str(), 0), 0);
    EXPECT_EQ(load(path), "");
    empty.size = 1;
    EXPECT_EQ(QvCommonBuffer_save2(&empty, path.c_str(), 0), 13);
}

TEST_F(CommonBuffer, LoadsWhatHasNoSizeAndSavesThroughIt)
{
    EXPECT_EQ(load("/proc/self/stat").find(std::to_string(getpid())), 0U); // its size is said to be 0
    EXPECT_EQ(load("/dev/zero", 3, 5000), std::string(5000, '\0'));

    // A device may have no end; what reads on would take all memory.
    testing::internal::CaptureStderr();
    EXPECT_EQ(QvCommonBuffer_load2("/dev/zero", 0, 0, &buffer_), 6);
    const fs::path sparse = folder_ / "sparse";
    std::ofstream(sparse) << "x";
    fs::resize_file(sparse, (1ULL << 40) + 2);
    for (const size_t size : {size_t{0}, size_t{QV_COMMON_BUFFER_LOAD_LIMIT} + 1, SIZE_MAX}) {
        EXPECT_EQ(QvCommonBuffer_load2(sparse.c_str(), 0, size, &buffer_), 6);
    }
    const std::string traces = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(traces.begin(), traces.end(), '\n'), 4);
    EXPECT_TRUE(
        traces.ends_with("too short or over capacity(6): more than 1073741824 bytes: " + sparse.string() + "\n"));
    EXPECT_EQ(load(sparse, 0, 2), std::string("x\0", 2));
    EXPECT_EQ(load(sparse, 1ULL << 40), std::string(2, '\0'));

    // A pipe can't seek, and comes in pieces.
    const fs::path path = makePipe();
    const std::string content = "head " + std::string(200000, 'p');
    std::thread writer([&] { EXPECT_EQ(save(path, content), 0); });
    EXPECT_EQ(load(path, 5), content.substr(5));
    writer.join();
    EXPECT_TRUE(S_ISFIFO(mode(path)));
}

TEST_F(CommonBuffer, SavesPartsOneBehindTheOtherHoweverMany)
{
    // More than one call takes, of lengths that a pipe breaks up anywhere, with nothing at both ends and between.
    std::string content;
    std::vector<std::string> texts(300);
    for (size_t i = 0; i < texts.size(); ++i) {
        texts[i] = i % 7 == 0 ? "" : std::string(i * i % 3000, static_cast<char>('a' + i % 26));
        content += texts[i];
    }
    std::vector<QvCommonBufferPart_t> parts;
    parts.reserve(texts.size());
    for (const std::string& text : texts) {
        parts.push_back({text.empty() ? nullptr : text.data(), text.size()});
    }
    const fs::path path = folder_ / "file";
    EXPECT_EQ(QvCommonBuffer_saveParts(parts.data(), parts.size(), path.c_str()), 0);
    EXPECT_TRUE(load(path) == content);
    const fs::path pipe = makePipe();
    std::thread writer([&] { EXPECT_EQ(QvCommonBuffer_saveParts(parts.data(), parts.size(), pipe.c_str()), 0); });
    EXPECT_TRUE(load(pipe) == content);
    writer.join();

    parts[5] = {nullptr, 1};
    EXPECT_EQ(QvCommonBuffer_saveParts(parts.data(), parts.size(), path.c_str()), 13);
    EXPECT_EQ(QvCommonBuffer_saveParts(nullptr, 1, path.c_str()), 13);
    EXPECT_EQ(QvCommonBuffer_saveParts(parts.data(), 1, nullptr), 13);
    EXPECT_TRUE(load(path) == content);
    EXPECT_EQ(QvCommonBuffer_saveParts(nullptr, 0, path.c_str()), 0);
    EXPECT_EQ(load(path), "");
}

TEST_F(CommonBuffer, FailedLoadLeavesTheBuffer)
{
    ASSERT_EQ(save(folder_ / "file", "kept"), 0);
    const std::string before = load(folder_ / "file");
    EXPECT_EQ(QvCommonBuffer_load2((folder_ / "none").c_str(), 0, 0, &buffer_), 3);
    EXPECT_EQ(QvCommonBuffer_load2(folder_.path().c_str(), 0, 0, &buffer_), 9);
    EXPECT_EQ(QvCommonBuffer_load2("/proc/self/mem", 0, 0, &buffer_), 11); // nothing is mapped at 0
    EXPECT_EQ(QvCommonBuffer_load2(nullptr, 0, 0, &buffer_), 13);
    EXPECT_EQ(std::string(buffer_.pBegin, buffer_.size), before);
}

TEST_F(CommonBuffer, SaveKeepsModeOfAnOldFileAndObeysUmaskForANewOne)
{
    const fs::path path = folder_ / "file";
    const mode_t before = umask(027);
    EXPECT_EQ(save(path, "x"), 0);
    EXPECT_EQ(mode(path), S_IFREG | 0640U);
    for (const mode_t wanted : {0606U, 0777U}) {
        ASSERT_EQ(chmod(path.c_str(), wanted), 0);
        EXPECT_EQ(save(path, "y"), 0);
        EXPECT_EQ(mode(path), S_IFREG | wanted);
    }
    umask(before);
}

TEST_F(CommonBuffer, FailedSaveLeavesTheOldFileAndNothingElse)
{
    const fs::path path = folder_ / "file";
    ASSERT_EQ(save(path, "old"), 0);
    EXPECT_EQ(save(folder_ / "new/", "x"), 3);
    EXPECT_EQ(save("", "x"), 3);
    EXPECT_EQ(save(folder_.path(), "x"), 9);

    // A limit on the size of files makes writing fail half way, as on a full disk. Its signal isn't kept for a program
    // that has blocked it, unless it waited before.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit limit = {5000, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    for (const bool waits : {false, true}) {
        if (waits) {
            pthread_kill(pthread_self(), SIGXFSZ);
        }
        EXPECT_EQ(save(path, std::string(9000, 'n')), 12);
        sigset_t pending;
        sigpending(&pending);
        EXPECT_EQ(sigismember(&pending, SIGXFSZ), waits ? 1 : 0);
    }
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(sigwaitinfo(&signals, nullptr), SIGXFSZ);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);

    EXPECT_EQ(readFile(path), "old");
    EXPECT_EQ(folder_.files(), 1);
}

} // namespace
