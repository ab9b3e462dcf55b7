#include <qv_initialization/initialization_section.h>

#include <cstdlib>
#include <initializer_list>

#include <qv_common_c/common_error.h>
#include <qv_initialization/initialization_member.h>

namespace {

int deleteComment(void** ppComment)
{
    std::free(*ppComment);
    *ppComment = nullptr;
    return QvCommonError_Success;
}

int deleteMember(void** ppMember)
{
    auto* pMember = static_cast<QvInitializationMember_t*>(*ppMember);
    *ppMember = nullptr;
    return pMember != nullptr ? QvInitializationMember_delete(&pMember) : QvCommonError_Success;
}

int openQueue(QvCommonDQueueDeleteDataHandler_t pDeleteDataHandler, QvCommonDQueueHandle_t* phQueue)
{
    QvCommonDQueueOpenParam_t param{};
    param.pDeleteDataHandler = pDeleteDataHandler;
    return QvCommonDQueue_open(&param, phQueue);
}

} // namespace

int QvInitializationSection_create(QvInitializationSection_t** ppSection)
{
    if (ppSection == nullptr || *ppSection != nullptr) {
        return QvCommonError_BadArgument;
    }
    auto* pSection = static_cast<QvInitializationSection_t*>(std::calloc(1, sizeof(QvInitializationSection_t)));
    if (pSection == nullptr) {
        return QvCommonError_OutOfMemory;
    }
    int status = openQueue(deleteComment, &pSection->hComment);
    if (status == QvCommonError_Success) {
        status = openQueue(deleteMember, &pSection->hMember);
    }
    if (status != QvCommonError_Success) {
        QvInitializationSection_delete(&pSection);
        return status;
    }
    *ppSection = pSection;
    return QvCommonError_Success;
}

int QvInitializationSection_delete(QvInitializationSection_t** ppSection)
{
    if (ppSection == nullptr || *ppSection == nullptr) {
        return QvCommonError_BadArgument;
    }
    int status = QvCommonError_Success;
    for (QvCommonDQueueHandle_t* phQueue : {&(*ppSection)->hComment, &(*ppSection)->hMember}) {
        // A queue that was never opened, or that the caller has closed, is no failure.
        const int closed = *phQueue != 0 ? QvCommonDQueue_close(phQueue) : QvCommonError_Success;
        if (status == QvCommonError_Success) {
            status = closed;
        }
    }
    std::free((*ppSection)->pHeader);
    std::free(*ppSection);
    *ppSection = nullptr;
    return status;
}
