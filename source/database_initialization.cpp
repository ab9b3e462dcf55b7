#include "database_initialization.h"

#include <qv_initialization/initialization_section.h>

namespace qv::database {

namespace {

int deleteSection(void** ppElement)
{
    auto* pSection = static_cast<QvInitializationSection_t*>(*ppElement);
    const int status = QvInitializationSection_delete(&pSection);
    *ppElement = pSection;
    return status;
}

} // namespace

int openSections(QvCommonDQueueHandle_t* pHandle)
{
    QvCommonDQueueOpenParam_t param{};
    param.pDeleteDataHandler = &deleteSection;
    return QvCommonDQueue_open(&param, pHandle);
}

} // namespace qv::database
