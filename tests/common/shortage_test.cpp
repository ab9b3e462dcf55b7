// Memory that runs out, at each allocation of each operation in turn: the outcome is a status, the process goes on, and
// nothing is lost on the way.
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "common/through.h"
#include "endurance/scarce_memory.h"

namespace {

using namespace qv::test;

struct Outcome {
    int status = -1;
    size_t blocks = 0; // taken and not given back
    bool isShort = false;
};

// Runs an operation in a new thread that may allocate so many blocks.
Outcome runWith(long number, const std::function<int()>& operation)
{
    int status = -1;
    const Demand demand = runScarcely(number, Refuse::AllFromThenOn, [&] { status = operation(); });
    return {status, keptBlocks().size(), demand.refused != 0};
}

// One block more each time until it is enough.
void runShort(const char* pName, const std::function<int()>& operation, int expected = 0)
{
    Outcome outcome = runWith(100000, operation); // what is made once for the process is made here
    ASSERT_EQ(outcome.status, expected) << pName;
    for (long number = 0;; ++number) {
        outcome = runWith(number, operation);
        EXPECT_EQ(outcome.blocks, 0U) << pName << " with " << number;
        if (!outcome.isShort) {
            break;
        }
        EXPECT_TRUE(outcome.status == QvCommonError_OutOfMemory || outcome.status == expected)
            << pName << " with " << number << ": " << outcome.status;
    }
    EXPECT_EQ(outcome.status, expected) << pName;
}

class Shortage : public testing::Test {
protected:
    Shortage()
    {
        std::string name = std::filesystem::temp_directory_path() / "qv_shortage.XXXXXX";
        folder_ = mkdtemp(name.data());
        file_ = folder_ + "/file";
    }
    ~Shortage() override { std::filesystem::remove_all(folder_); }

    void SetUp() override { testing::internal::CaptureStderr(); }
    void TearDown() override
    {
        if (!traces_) {
            takeTraces();
        }
    }
    std::string takeTraces()
    {
        traces_ = true;
        return testing::internal::GetCapturedStderr();
    }

    std::string folder_;
    std::string file_;
    bool traces_ = false; // were taken
};

TEST_F(Shortage, JsonGivesAStatus)
{
    std::string text = "// above\n{\"a\": [1, 2.5e3, \"t\\u00e4\"] /* one */ /* two */, \"\\u0062\": {}, \"b\": [[]]";
    for (int key = 0; key < 100; ++key) {
        text += ", \"key" + std::to_string(key) + "\": \"text\" // behind\n";
    }
    text += "} // root\n";
    runShort("json", [&] { return throughJson(text, file_.c_str()); });
    text += '?';
    runShort(
        "broken json", [&] { return throughJson(text, file_.c_str()); }, QvCommonError_Syntax);
    runShort("tree", [] {
        QvJsonValue_t* pRoot = nullptr;
        int status = QvJsonValue_create(QvJsonValueType_Null, &pRoot);
        for (int key = 0; key < 40 && status == 0; ++key) {
            QvJsonValue_t* pList = nullptr;
            const char name[] = {static_cast<char>('0' + key), '\0'};
            status = QvJsonValue_create(QvJsonValueType_Array, &pList);
            if (status == 0) {
                status = QvJsonValue_addValueToObject(pRoot, static_cast<const char*>(name), &pList);
            }
            if (status == 0) {
                status = QvJsonValue_addStringToArray(pList, "text");
            } else {
                QvJsonValue_delete(&pList);
            }
        }
        QvJsonValue_t* pValue = nullptr;
        status = status == 0 ? QvJsonPath(pRoot, "a/b/c", &pValue) : status;
        QvJsonValue_delete(&pRoot);
        return status;
    });
}

TEST_F(Shortage, WhereThereIsNoValueToGiveItStaysEmpty)
{
    QvJsonValue_t* pValue = nullptr;
    const Outcome outcome = runWith(0, [&pValue] {
        pValue = QvJsonValue_member(nullptr, "key");
        return pValue == nullptr || QvJsonValue_member(pValue, "key") == nullptr ||
                       QvJsonValue_item(pValue, 3) == nullptr || !QvJsonValue_isEmpty(pValue)
                   ? -1
                   : 0;
    });
    ASSERT_EQ(outcome.status, 0);
    ASSERT_TRUE(outcome.isShort);
    // Memory is back, but the value is shared with others by now.
    QvJsonValue_t* pPlace = nullptr;
    EXPECT_EQ(QvJsonValue_addIntegerToArray(pValue, 1), QvCommonError_OutOfMemory);
    EXPECT_EQ(QvJsonValue_addIntegerToObject(pValue, "key", 1), QvCommonError_OutOfMemory);
    EXPECT_EQ(QvJsonPath(pValue, "a/b", &pPlace), QvCommonError_OutOfMemory);
    EXPECT_TRUE(QvJsonValue_isEmpty(pValue));
    EXPECT_EQ(QvJsonValue_delete(&pValue), 0);
    pValue = QvJsonValue_member(nullptr, "key");
    EXPECT_EQ(QvJsonValue_addIntegerToArray(pValue, 1), 0);
}

TEST_F(Shortage, CommonGivesAStatus)
{
    runShort("map", [] {
        QvCommonMapOpenParam_t param = {};
        QvCommonMapHandle_t map = 0;
        int status = QvCommonMap_open(&param, &map);
        auto* pSlot = static_cast<QvCommonMapSlot_t*>(std::calloc(1, sizeof(QvCommonMapSlot_t)));
        if (status == 0) {
            status = pSlot != nullptr ? QvCommonMap_add(map, "a key that is too long for a short string", &pSlot)
                                      : QvCommonError_OutOfMemory;
        }
        if (status != 0) {
            std::free(pSlot);
        }
        QvCommonMap_close(&map);
        return status;
    });
    runShort("queue", [] {
        QvCommonDQueueHandle_t queue = 0;
        int status = QvCommonDQueue_open(nullptr, &queue);
        void* pElement = nullptr;
        for (int number = 0; number < 300 && status == 0; ++number) {
            status = QvCommonDQueue_pushBack(queue, &pElement);
        }
        QvCommonDQueue_close(&queue);
        return status;
    });
    QvCommonDQueueHandle_t walked = 0;
    ASSERT_EQ(QvCommonDQueue_open(nullptr, &walked), 0);
    for (void* pElement = &walked; QvCommonDQueue_length(walked) < 300;) {
        ASSERT_EQ(QvCommonDQueue_pushBack(walked, &pElement), 0);
    }
    const Outcome walk = runWith(0, [walked] {
        int status = 0;
        for (size_t number = 0; number < 300 && status == 0; ++number) {
            void* pElement = nullptr;
            status = firstOf({QvCommonDQueue_popFront(walked, &pElement), QvCommonDQueue_pushBack(walked, &pElement)});
        }
        return status;
    });
    EXPECT_EQ(walk.status, 0); // what was taken out can be put back
    EXPECT_EQ(QvCommonDQueue_close(&walked), 0);
    runShort("buffer", [this] {
        QvCommonBuffer_t* pBuffer = nullptr;
        int status = QvCommonBuffer_create(&pBuffer);
        if (status == 0) {
            char text[] = "text";
            *pBuffer = {static_cast<char*>(text), 0, 4, nullptr, false};
            status = QvCommonBuffer_save2(pBuffer, file_.c_str(), 0);
        }
        if (status == 0) {
            status = QvCommonBuffer_load2(file_.c_str(), 0, 0, pBuffer);
        }
        QvCommonBuffer_delete(&pBuffer);
        return status;
    });
    runShort("save over an old file", [this] {
        char old[] = "old";
        char fresh[] = "new";
        char found[4] = "";
        const int file = ::open(file_.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        bool isWell = ::write(file, static_cast<char*>(old), 3) == 3;
        QvCommonBuffer_t buffer = {static_cast<char*>(fresh), 0, 3, nullptr, false};
        const int status = QvCommonBuffer_save2(&buffer, file_.c_str(), 0);
        ::close(file);
        const int saved = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC);
        isWell = isWell && ::read(saved, static_cast<char*>(found), 3) == 3;
        ::close(saved);
        const char* pExpected = status == 0 ? static_cast<char*>(fresh) : static_cast<char*>(old);
        return isWell && std::strcmp(static_cast<char*>(found), pExpected) == 0 ? status : QvCommonError_Failure;
    });
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), std::filesystem::directory_iterator()), 1);
}

TEST_F(Shortage, TracesGoOn)
{
    runShort("trace", [] {
        QvCommonTracerOpenParam_t param = {QvCommonTracerLevel_Info, nullptr,
                                           [](void*, QvCommonTracerLevel_t, const char*, size_t) { return 0; },
                                           nullptr};
        QvCommonTracerHandle_t tracer = 0;
        const int status = QvCommonTracer_open(&param, &tracer);
        for (const QvCommonTracerLevel_t level : {QvCommonTracerLevel_Debug, QvCommonTracerLevel_Error}) {
            for (const QvCommonTracerHandle_t handle : {tracer, QvCommonTracerHandle_t{0}}) {
                QvCommonTracer_prefixSet(handle, level, "file.cpp", 1, "function");
                std::fprintf(QvCommonTracer_file(handle), "%300d\n", 1);
            }
        }
        QvCommonTracer_close(&tracer);
        return status;
    });
    const std::string traces = takeTraces();
    EXPECT_NE(traces.find("error: file.cpp:1: function: "), std::string::npos);
    EXPECT_EQ(traces.find("debug"), std::string::npos);
}

TEST_F(Shortage, InitializationGivesAStatus)
{
    std::string text = "; note\n[a]\n# note\n\"k\\x01\" = v\nk2 = \"a longer value\\n\"\n[b]\nk = \"open\n; end";
    const auto through = [&text] { return throughInitialization(text); };
    runShort("initialization", through);
    text += "\n[open";
    runShort("broken initialization", through, QvCommonError_Syntax);
}

} // namespace
