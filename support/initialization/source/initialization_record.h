#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include <qv_common_c/common_dqueue.h>
#include <qv_common_c/common_error.h>
#include <qv_initialization/initialization_member.h>
#include <qv_initialization/initialization_section.h>

// What reader and writer share: owners for the C records, and the way in which failures reach the C interface.
namespace qv::initialization {

/// A status on its way to the C interface.
struct StatusError {
    int status;
};

void throwUnlessSuccess(int status);

/// Runs an operation and gives its outcome as a status, so that no exception gets out of the library.
template <typename Operation>
int statusOf(Operation operation) noexcept
{
    try {
        operation();
        return QvCommonError_Success;
    } catch (const StatusError& error) {
        return error.status;
    } catch (const std::bad_alloc&) {
        return QvCommonError_OutOfMemory;
    } catch (...) {
        return QvCommonError_Failure;
    }
}

struct Free {
    void operator()(char* pText) const { std::free(pText); }
};

struct DeleteMember {
    void operator()(QvInitializationMember_t* pMember) const { QvInitializationMember_delete(&pMember); }
};

struct DeleteSection {
    void operator()(QvInitializationSection_t* pSection) const { QvInitializationSection_delete(&pSection); }
};

using TextPointer = std::unique_ptr<char, Free>;
using MemberPointer = std::unique_ptr<QvInitializationMember_t, DeleteMember>;
using SectionPointer = std::unique_ptr<QvInitializationSection_t, DeleteSection>;

MemberPointer makeMember();
SectionPointer makeSection();

/// A zero-terminated copy in a block of malloc.
TextPointer copyOf(std::string_view text);

/// Hands an element over to a queue that owns its elements.
template <typename Owner>
void pushBack(QvCommonDQueueHandle_t hQueue, Owner owner)
{
    void* pElement = owner.get();
    throwUnlessSuccess(QvCommonDQueue_pushBack(hQueue, &pElement));
    static_cast<void>(owner.release());
}

/// The elements of a queue from front to back, null ones left out. The queue keeps them in their order.
template <typename Element>
std::vector<Element*> elementsOf(QvCommonDQueueHandle_t hQueue)
{
    const std::size_t number = QvCommonDQueue_length(hQueue);
    std::vector<Element*> elements;
    // Nothing may throw between a pop and its push, or the queue would be left turned halfway.
    elements.reserve(number);
    for (std::size_t i = 0; i < number; i++) {
        void* pElement = nullptr;
        throwUnlessSuccess(QvCommonDQueue_popFront(hQueue, &pElement));
        if (pElement != nullptr) {
            elements.push_back(static_cast<Element*>(pElement));
        }
        throwUnlessSuccess(QvCommonDQueue_pushBack(hQueue, &pElement));
    }
    return elements;
}

} // namespace qv::initialization
