#include "database_initialization.h"

#include <cstdio>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/protocol_initialization.h>

#include "database_codec.h"
#include "database_status.h"
#include "database_trace.h"

namespace qv::database {
namespace {

template <class R>
R sectionRecordOf(int (*)(QvInitializationSection_t*, R*));

template <auto kParse, auto kSerialize>
constexpr SectionCodec section(const char* pKey)
{
    using R = decltype(sectionRecordOf(kParse));
    return {
        pKey,
        [](QvInitializationSection_t* pSection, void* pRecord) { return kParse(pSection, static_cast<R*>(pRecord)); },
        [](void* pRecord, QvInitializationSection_t* pSection) {
            return kSerialize(static_cast<R*>(pRecord), pSection);
        }};
}

#define QV_SECTION(key, stem)                                                                                          \
    section<&QvDatabaseProtocolInitialization_##stem##_parse, &QvDatabaseProtocolInitialization_##stem##_serialize>(key)

// The order of writing.
constexpr SectionCodec kSections[] = {
    QV_SECTION("C_MODEL", cModel), QV_SECTION("DVC", device), QV_SECTION("IPT", input),
    QV_SECTION("OPT", output),     QV_SECTION("SS", sensor),  QV_SECTION("TM", transmit),
};

#undef QV_SECTION

int deleteSection(void** ppElement)
{
    auto* pSection = static_cast<QvInitializationSection_t*>(*ppElement);
    const int status = QvInitializationSection_delete(&pSection);
    *ppElement = pSection;
    return status;
}

} // namespace

std::span<const SectionCodec> sections()
{
    return kSections;
}

int openSections(QvCommonDQueueHandle_t* pHandle)
{
    QvCommonDQueueOpenParam_t param{};
    param.pDeleteDataHandler = &deleteSection;
    return QvCommonDQueue_open(&param, pHandle);
}

void warnSection(const Place& place, int status)
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Warning, place.file, place.line, place.function);
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d)\n", QvCommonError_text(status), status);
}

} // namespace qv::database
