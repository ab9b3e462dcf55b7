#include "database_trace.h"

#include <cstdio>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>

#include "database_shortage.h"
#include "database_status.h"

namespace qv::database {
namespace {

void noteStatus(int status)
{
    if (status == kNoMemory) {
        noteShortage();
    }
}

void traceStatus(QvCommonTracerLevel_t level, const Place& place, int status)
{
    noteStatus(status);
    QvCommonTracer_prefixSet(hTracer, level, place.file, place.line, place.function);
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d)\n", QvCommonError_text(status), status);
}

} // namespace

int traceFailure(const Place& place, int status)
{
    traceStatus(QvCommonTracerLevel_Error, place, status);
    return status;
}

void traceWarning(const Place& place, int status)
{
    traceStatus(QvCommonTracerLevel_Warning, place, status);
}

void traceMember(const Place& place, const char* pKey, int status)
{
    noteStatus(status);
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Debug, place.file, place.line, place.function);
    std::fprintf(QvCommonTracer_file(hTracer), "(%s) %s(%d)\n", pKey, QvCommonError_text(status), status);
}

} // namespace qv::database
