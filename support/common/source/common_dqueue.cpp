#include "qv_common_c/common_dqueue.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

#include "boundary.h"

namespace {

using namespace qv::common;

// A ring. It never becomes smaller, so that what was taken out can be put back whatever memory there is: sections and
// their members are walked that way.
class Elements {
public:
    size_t size() const { return number_; }
    void* at(size_t index) const { return places_[(first_ + index) % places_.size()]; }

    void pushBack(void* pElement)
    {
        if (number_ == places_.size()) {
            grow();
        }
        places_[(first_ + number_) % places_.size()] = pElement;
        ++number_;
    }

    void popFront()
    {
        first_ = (first_ + 1) % places_.size();
        --number_;
    }

private:
    void grow()
    {
        std::vector<void*> places(std::max<size_t>(16, 2 * number_));
        for (size_t index = 0; index < number_; ++index) {
            places[index] = at(index);
        }
        places_.swap(places);
        first_ = 0;
    }

    std::vector<void*> places_;
    size_t first_ = 0;
    size_t number_ = 0;
};

struct Queue {
    Elements elements;
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
        for (size_t index = 0; index < pQueue->elements.size(); ++index) {
            void* pElement = pQueue->elements.at(index);
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
        if (pQueue->elements.size() == 0) {
            return QvCommonError_NoEntry;
        }
        *ppElement = pQueue->elements.at(0);
        pQueue->elements.popFront();
        return QvCommonError_Success;
    });
}
