#include <qv_common_c/common_tracer.h>

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <qv_common_c/common_logger.h>

namespace {

using Lines = std::vector<std::pair<int, std::string>>;

int keepLine(void* pUserData, QvCommonTracerLevel_t level, const char* pText, size_t length)
{
    EXPECT_EQ(pText[length], '\0');
    static_cast<Lines*>(pUserData)->emplace_back(level, std::string(pText, length));
    return 1; // is ignored
}

int keepMessage(void* pUserData, const char* pText, size_t length)
{
    *static_cast<std::string*>(pUserData) = std::string(pText, length);
    return 7;
}

QvCommonTracerHandle_t open(QvCommonTracerLevel_t level, Lines* pLines, FILE* pStream = nullptr)
{
    QvCommonTracerOpenParam_t param = {level, pStream, pLines != nullptr ? keepLine : nullptr, pLines};
    QvCommonTracerHandle_t handle = 0;
    EXPECT_EQ(QvCommonTracer_open(&param, &handle), 0);
    EXPECT_EQ(QvCommonTracer_open(&param, &handle), 13); // the variable isn't clear
    return handle;
}

void trace(QvCommonTracerHandle_t handle, QvCommonTracerLevel_t level, const char* pText)
{
    QvCommonTracer_prefixSet(handle, level, nullptr, 0, nullptr);
    std::fprintf(QvCommonTracer_file(handle), "%s\n", pText);
}

TEST(CommonTracer, WorksBeforeAnyoneOpenedIt)
{
    ASSERT_EQ(hTracer, 0U);
    testing::internal::CaptureStderr();
    trace(hTracer, QvCommonTracerLevel_Debug, "off");
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, "source/x.cpp", 12, "Function");
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d)\n", "text", 13);
    std::fprintf(QvCommonTracer_file(hTracer), "the prefix comes once\n");
    trace(hTracer, QvCommonTracerLevel_Info, "plain");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "error: source/x.cpp:12: Function: text(13)\n"
                                                      "the prefix comes once\n"
                                                      "info: plain\n");
}

TEST(CommonTracer, WritesFromItsLevelUpAndFormatsNothingBelow)
{
    for (int lowest = 0; lowest <= QvCommonTracerLevel_Sum; ++lowest) {
        Lines lines;
        QvCommonTracerHandle_t handle = open(static_cast<QvCommonTracerLevel_t>(lowest), &lines);
        for (int level = 0; level < QvCommonTracerLevel_Sum; ++level) {
            QvCommonTracer_prefixSet(handle, static_cast<QvCommonTracerLevel_t>(level), nullptr, 0, nullptr);
            int formatted = -1;
            std::fprintf(QvCommonTracer_file(handle), "text%n\n", &formatted);
            EXPECT_EQ(formatted, level >= lowest ? 4 : -1);
        }
        EXPECT_EQ(QvCommonTracer_close(&handle), 0);
        const Lines all = {{0, "debug: text"}, {1, "info: text"}, {2, "warning: text"}, {3, "error: text"}};
        EXPECT_EQ(lines, Lines(all.begin() + lowest, all.end()));
    }
}

TEST(CommonTracer, FunctionGetsWholeLinesWithTheirLevel)
{
    Lines lines;
    QvCommonTracerHandle_t handle = open(QvCommonTracerLevel_Debug, &lines);
    const std::string longText(100000, 'x'); // beyond any buffer
    trace(handle, QvCommonTracerLevel_Warning, longText.c_str());
    QvCommonTracer_prefixSet(handle, QvCommonTracerLevel_Debug, "a.cpp", 0, nullptr);
    std::fprintf(QvCommonTracer_file(handle), "one\n\ntwo");
    trace(handle, QvCommonTracerLevel_Error, "");
    QvCommonTracer_prefixSet(handle, QvCommonTracerLevel_Info, nullptr, 3, "f");
    std::fprintf(QvCommonTracer_file(handle), "not ended");
    EXPECT_EQ(lines.size(), 4U);
    EXPECT_EQ(QvCommonTracer_close(&handle), 0);
    EXPECT_EQ(lines, (Lines{{2, "warning: " + longText},
                            {0, "debug: a.cpp: one"},
                            {0, ""},
                            {3, "twoerror: "},
                            {1, "info: not ended"}}));
}

TEST(CommonTracer, ThreadsKeepTheirOwnPositions)
{
    Lines lines;
    QvCommonTracerHandle_t handle = open(QvCommonTracerLevel_Info, &lines);
    QvCommonTracer_prefixSet(handle, QvCommonTracerLevel_Error, "mine.cpp", 1, "f");
    std::thread([handle] {
        trace(handle, QvCommonTracerLevel_Debug, "off");
        trace(handle, QvCommonTracerLevel_Info, "other");
    }).join();
    std::fprintf(QvCommonTracer_file(handle), "mine\n");
    EXPECT_EQ(lines, (Lines{{1, "info: other"}, {3, "error: mine.cpp:1: f: mine"}}));
    EXPECT_EQ(QvCommonTracer_close(&handle), 0);
}

TEST(CommonTracer, LinesOfThreadsNeverMixAndAreOneWriteEach)
{
    // Each write into a pipe of packets comes out on its own.
    int ends[2] = {};
    ASSERT_EQ(pipe2(ends, O_DIRECT), 0);
    FILE* pPipe = fdopen(ends[1], "w");
    ASSERT_EQ(std::setvbuf(pPipe, nullptr, _IONBF, 0), 0);
    QvCommonTracerHandle_t handle = open(QvCommonTracerLevel_Info, nullptr, pPipe);
    constexpr int kLines = 2000;
    const auto line = [](int thread, int number) {
        return std::to_string(thread) + ", " + std::to_string(number) + " " +
               std::string(static_cast<size_t>(number) % 300, static_cast<char>('a' + thread));
    };
    std::vector<std::thread> threads;
    threads.reserve(2);
    for (int thread = 0; thread < 2; ++thread) {
        threads.emplace_back([&, thread] {
            for (int number = 0; number < kLines; ++number) {
                const std::string text = line(thread, number);
                QvCommonTracer_prefixSet(handle, QvCommonTracerLevel_Error, "file.cpp", thread, "f");
                FILE* pFile = QvCommonTracer_file(handle);
                // In two parts, the first of them short or long.
                const int part = number % 7;
                std::fprintf(pFile, "%.*s", part, text.c_str());
                std::fprintf(pFile, "%s\n", text.c_str() + part);
            }
        });
    }
    std::thread closer([&] {
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(QvCommonTracer_close(&handle), 0);
        std::fclose(pPipe);
    });
    int next[2] = {};
    char packet[4096];
    for (ssize_t size = 0; (size = read(ends[0], packet, sizeof(packet))) > 0;) {
        const std::string text(packet, static_cast<size_t>(size));
        const int thread = text.find(", ") != std::string::npos && text[text.find(", ") - 1] == '1' ? 1 : 0;
        EXPECT_EQ(text, std::string("error: file.cpp") + (thread == 1 ? ":1" : "") +
                            ": f: " + line(thread, next[thread]) + "\n");
        ++next[thread];
    }
    closer.join();
    close(ends[0]);
    EXPECT_EQ(next[0], kLines);
    EXPECT_EQ(next[1], kLines);
}

TEST(CommonTracer, StreamIsTheCallersAndMayBeFull)
{
    char* pText = nullptr;
    size_t size = 0;
    FILE* pMemory = open_memstream(&pText, &size);
    QvCommonTracerHandle_t handle = open(QvCommonTracerLevel_Info, nullptr, pMemory);
    trace(handle, QvCommonTracerLevel_Info, "text");
    EXPECT_EQ(QvCommonTracer_close(&handle), 0);
    EXPECT_EQ(std::string(pText, size), "info: text\n"); // flushed
    std::fclose(pMemory);
    std::free(pText);

    QvCommonLoggerOpenParam_t loggerParam = {std::fopen("/dev/full", "w"), nullptr, nullptr};
    ASSERT_EQ(QvCommonLogger_open(&loggerParam, &handle), 0);
    EXPECT_EQ(QvCommonLogger_log(handle, "100% %s"), 12);
    EXPECT_EQ(QvCommonLogger_close(&handle), 0);
    std::fclose(loggerParam.pStream);
}

TEST(CommonTracer, BadArgumentsAreRefused)
{
    QvCommonTracerOpenParam_t param = {};
    QvCommonTracerHandle_t handle = 0;
    EXPECT_EQ(QvCommonTracer_open(nullptr, &handle), 13);
    EXPECT_EQ(QvCommonTracer_open(&param, nullptr), 13);
    param.level = static_cast<QvCommonTracerLevel_t>(QvCommonTracerLevel_Sum + 1);
    EXPECT_EQ(QvCommonTracer_open(&param, &handle), 13);
    EXPECT_EQ(QvCommonTracer_close(&handle), 13);
    Lines lines;
    handle = open(QvCommonTracerLevel_Error, &lines);
    trace(handle, param.level, "what is no level comes as an error");
    EXPECT_EQ(lines, (Lines{{3, "error: what is no level comes as an error"}}));
    EXPECT_EQ(QvCommonTracer_close(&handle), 0);
}

TEST(CommonLogger, MessageGoesToItsLogOrElseToTheTracer)
{
    testing::internal::CaptureStderr();
    QvCommonLoggerOpenParam_t param = {};
    QvCommonLoggerHandle_t handle = 0;
    ASSERT_EQ(QvCommonLogger_open(&param, &handle), 0);
    EXPECT_EQ(QvCommonLogger_log(handle, "100% %s"), 0);
    EXPECT_EQ(QvCommonLogger_log(handle, nullptr), 13);
    EXPECT_EQ(QvCommonLogger_open(&param, &handle), 13); // the variable isn't clear
    EXPECT_EQ(QvCommonLogger_open(nullptr, &handle), 13);
    EXPECT_EQ(QvCommonLogger_close(&handle), 0);
    EXPECT_EQ(QvCommonLogger_close(&handle), 13);
    EXPECT_EQ(QvCommonLogger_log(0, "ABC is never registered"), 13);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "100% %s\nwarning: ABC is never registered\n");

    std::string message;
    param.pWrite = keepMessage;
    param.pUserData = &message;
    ASSERT_EQ(QvCommonLogger_open(&param, &handle), 0);
    EXPECT_EQ(QvCommonLogger_log(handle, "text"), 7);
    EXPECT_EQ(message, "text");
    EXPECT_EQ(QvCommonLogger_close(&handle), 0);
}

} // namespace
