// Memory that runs out, at each allocation of each operation in turn: the outcome is a status, the process goes on, and
// nothing is lost on the way.
#include <cstdlib>
#include <functional>
#include <string>

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
    void SetUp() override { testing::internal::CaptureStderr(); }
    void TearDown() override { testing::internal::GetCapturedStderr(); }
    std::string takeTraces()
    {
        std::string traces = testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        return traces;
    }
};

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
        auto* pSlot = static_cast<QvCommonMapSlot_t*>(std::calloc(1, sizeof(QvCommonMapSlot_t)));
        const int status =
            inTurn([&] { return pSlot != nullptr ? 0 : QvCommonError_OutOfMemory; },
                   [&] { return QvCommonMap_open(&param, &map); },
                   [&] { return QvCommonMap_add(map, "a key that is too long for a short string", &pSlot); });
        if (status != 0) {
            std::free(pSlot);
        }
        QvCommonMap_close(&map);
        return status;
    });
    QvCommonDQueueHandle_t queue = 0;
    const auto fill = [&queue] {
        int status = QvCommonDQueue_open(nullptr, &queue);
        void* pElement = nullptr;
        for (int number = 0; number < 300 && status == 0; ++number) {
            status = QvCommonDQueue_pushBack(queue, &pElement);
        }
        return status;
    };
    runShort("queue", [&] {
        const int status = fill();
        QvCommonDQueue_close(&queue);
        return status;
    });
    ASSERT_EQ(fill(), 0);
    const Outcome walk = runWith(0, [queue] {
        int status = 0;
        for (size_t number = 0; number < 300 && status == 0; ++number) {
            void* pElement = nullptr;
            status = inTurn([&] { return QvCommonDQueue_popFront(queue, &pElement); },
                            [&] { return QvCommonDQueue_pushBack(queue, &pElement); });
        }
        return status;
    });
    EXPECT_EQ(walk.status, 0); // what was taken out can be put back
    EXPECT_EQ(QvCommonDQueue_close(&queue), 0);
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
