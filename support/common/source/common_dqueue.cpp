#include <qv_common_c/common_dqueue.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

#include "boundary.h"

namespace {

using namespace qv::common;

/// Elements in a ring that grows and never shrinks: whoever pops an element and pushes it back needs no memory for it, so
/// that a walk through a queue can't lose what it holds.
class Ring {
public:
    bool empty() const { return number_ == 0; }
    std::size_t size() const { return number_; }
    void*& at(std::size_t index) { return places_[(first_ + index) & (places_.size() - 1)]; }

    /// May throw, and changes nothing then.
    void pushBack(void* pElement)
    {
        if (number_ == places_.size()) {
            std::vector<void*> larger(std::max<std::size_t>(8, number_ * 2)); // a power of two
            for (std::size_t i = 0; i < number_; ++i) {
                larger[i] = at(i);
            }
            places_.swap(larger);
            first_ = 0;
        }
        ++number_;
        at(number_ - 1) = pElement;
    }

    void* popFront()
    {
        void* pElement = at(0);
        first_ = (first_ + 1) & (places_.size() - 1);
        --number_;
        return pElement;
    }

private:
    std::vector<void*> places_;
    std::size_t first_ = 0;
    std::size_t number_ = 0;
};

struct Queue {
    Ring elements;
    QvCommonDQueueDeleteDataHandler_t pDelete = nullptr;
    bool isThreadSafe = false;
    std::mutex mutex;

    /// Holds the mutex where the queue is for several threads, else nothing.
    std::unique_lock<std::mutex> lock()
    {
        return isThreadSafe ? std::unique_lock(mutex) : std::unique_lock<std::mutex>();
    }
};

} // namespace

int QvCommonDQueue_open(QvCommonDQueueOpenParam_t* pParam, QvCommonDQueueHandle_t* pHandle)
{
    if (!isClear(pHandle)) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        auto pQueue = std::make_unique<Queue>();
        if (pParam != nullptr) {
            pQueue->pDelete = pParam->pDeleteDataHandler;
            pQueue->isThreadSafe = pParam->isThreadSafe;
        }
        *pHandle = toHandle(pQueue.release());
        return QvCommonError_Success;
    });
}

int QvCommonDQueue_close(QvCommonDQueueHandle_t* pHandle)
{
    if (!isSet(pHandle)) {
        return QvCommonError_BadArgument;
    }
    const std::unique_ptr<Queue> pQueue(fromHandle<Queue>(*pHandle));
    int status = QvCommonError_Success;
    if (pQueue->pDelete != nullptr) {
        for (std::size_t i = 0; i < pQueue->elements.size(); ++i) {
            const int released = pQueue->pDelete(&pQueue->elements.at(i));
            if (status == QvCommonError_Success) {
                status = released;
            }
        }
    }
    *pHandle = 0;
    return status;
}

std::size_t QvCommonDQueue_length(QvCommonDQueueHandle_t handle)
{
    if (handle == 0) {
        return 0;
    }
    Queue* pQueue = fromHandle<Queue>(handle);
    const auto lock = pQueue->lock();
    return pQueue->elements.size();
}

int QvCommonDQueue_pushBack(QvCommonDQueueHandle_t handle, void** ppElement)
{
    if (handle == 0 || ppElement == nullptr) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        Queue* pQueue = fromHandle<Queue>(handle);
        const auto lock = pQueue->lock();
        pQueue->elements.pushBack(*ppElement);
        return QvCommonError_Success;
    });
}

int QvCommonDQueue_popFront(QvCommonDQueueHandle_t handle, void** ppElement)
{
    if (handle == 0 || ppElement == nullptr) {
        return QvCommonError_BadArgument;
    }
    return guarded([&] {
        Queue* pQueue = fromHandle<Queue>(handle);
        const auto lock = pQueue->lock();
        if (pQueue->elements.empty()) {
            return QvCommonError_NoEntry;
        }
        *ppElement = pQueue->elements.popFront();
        return QvCommonError_Success;
    });
}
