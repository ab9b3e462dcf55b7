#include <array>
#include <cstdint>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <qv_common_c/common_buffer_queue.h>
#include <qv_common_c/common_dqueue.h>

namespace {

std::vector<void*> released;

int releaseAndFailFirst(void** ppElement)
{
    released.push_back(*ppElement);
    return released.size() == 1 ? 12 : 0;
}

TEST(CommonDQueue, KeepsTheOrderAndGrowsWhereverItsFirstElementStands)
{
    QvCommonDQueueHandle_t hQueue = 0;
    ASSERT_EQ(QvCommonDQueue_open(nullptr, &hQueue), 0);
    void* pNone = &hQueue;
    EXPECT_EQ(QvCommonDQueue_popFront(hQueue, &pNone), 8);
    EXPECT_EQ(pNone, &hQueue); // an empty queue leaves the variable
    std::uintptr_t pushed = 0;
    std::uintptr_t popped = 0;
    for (std::uintptr_t round = 1; round < 60; ++round) {
        for (std::uintptr_t i = 0; i < round; ++i) {
            auto* pElement = reinterpret_cast<void*>(++pushed);
            ASSERT_EQ(QvCommonDQueue_pushBack(hQueue, &pElement), 0);
        }
        for (std::uintptr_t i = 0; i < round - round / 3; ++i) {
            void* pElement = nullptr;
            ASSERT_EQ(QvCommonDQueue_popFront(hQueue, &pElement), 0);
            ASSERT_EQ(reinterpret_cast<std::uintptr_t>(pElement), ++popped);
        }
        ASSERT_EQ(QvCommonDQueue_length(hQueue), pushed - popped);
    }
    EXPECT_EQ(QvCommonDQueue_close(&hQueue), 0);
    EXPECT_EQ(QvCommonDQueue_length(hQueue), 0U);
}

TEST(CommonDQueue, ThreadSafeQueueLosesNoElement)
{
    QvCommonDQueueOpenParam_t param = {nullptr, true};
    QvCommonDQueueHandle_t hQueue = 0;
    ASSERT_EQ(QvCommonDQueue_open(&param, &hQueue), 0);
    const auto work = [hQueue] {
        void* pElement = nullptr;
        for (int count = 0; count < 20000; ++count) {
            QvCommonDQueue_pushBack(hQueue, &pElement);
            QvCommonDQueue_pushBack(hQueue, &pElement);
            QvCommonDQueue_popFront(hQueue, &pElement);
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(QvCommonDQueue_length(hQueue), 40000U);
    EXPECT_EQ(QvCommonDQueue_close(&hQueue), 0);
}

// Through the queue of buffers, which is the other one beneath.
TEST(CommonBufferQueue, CloseReleasesWhatIsLeftWhereThereIsAHandler)
{
    for (const bool owns : {false, true}) {
        released.clear();
        QvCommonBufferQueueOpenParam_t param = {releaseAndFailFirst};
        QvCommonBufferQueueHandle_t hQueue = 0;
        ASSERT_EQ(QvCommonBufferQueue_open(owns ? &param : nullptr, &hQueue), 0);
        std::array<QvCommonBuffer_t, 3> buffers = {};
        for (QvCommonBuffer_t& buffer : buffers) {
            QvCommonBuffer_t* pBuffer = &buffer;
            ASSERT_EQ(QvCommonBufferQueue_pushBack(hQueue, &pBuffer), 0);
        }
        QvCommonBuffer_t* pBuffer = nullptr;
        EXPECT_EQ(QvCommonBufferQueue_pushBack(hQueue, &pBuffer), 13);
        EXPECT_EQ(QvCommonBufferQueue_pushBack(hQueue, nullptr), 13);
        EXPECT_EQ(QvCommonBufferQueue_popFront(hQueue, nullptr), 13);
        EXPECT_EQ(QvCommonBufferQueue_popFront(0, &pBuffer), 13);
        ASSERT_EQ(QvCommonBufferQueue_popFront(hQueue, &pBuffer), 0);
        EXPECT_EQ(pBuffer, &buffers[0]);
        EXPECT_EQ(QvCommonBufferQueue_length(hQueue), 2U);
        EXPECT_EQ(QvCommonBufferQueue_close(&hQueue), owns ? 12 : 0);
        EXPECT_EQ(hQueue, 0U);
        EXPECT_EQ(released, owns ? (std::vector<void*>{&buffers[1], &buffers[2]}) : std::vector<void*>());
    }
}

} // namespace
