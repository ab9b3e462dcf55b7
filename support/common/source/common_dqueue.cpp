#include "qv_common_c/common_dqueue.h"

#include <deque>
#include <memory>
#include <mutex>

#include "boundary.h"

namespace {

using namespace qv::common;

struct Queue {
    std::deque<void*> elements;
    QvCommonDQueueDeleteDataHandler_t pDelete = nullptr;
    bool isThreadSafe = false;
    std::mutex mutex;

    // Holds the mutex where the queue is for several threads, else nothing.
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
        for (void* pElement : pQueue->elements) {
            const int released = pQueue->pDelete(&pElement);
            if (status == QvCommonError_Success) {
                status = released;
            }
        }
    }
    *pHandle = 0;
    return status;
}

size_t QvCommonDQueue_length(QvCommonDQueueHandle_t handle)
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
        pQueue->elements.push_back(*ppElement);
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
        *ppElement = pQueue->elements.front();
        pQueue->elements.pop_front();
        return QvCommonError_Success;
    });
}
