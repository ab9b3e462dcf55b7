#include "database_trace.h"

#include <cstdio>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>

namespace qv::database {

int traceFailure(const Place& place, int status)
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Error, place.file, place.line, place.function);
    std::fprintf(QvCommonTracer_file(hTracer), "%s(%d)\n", QvCommonError_text(status), status);
    return status;
}

void traceMember(const Place& place, const char* pKey, int status)
{
    QvCommonTracer_prefixSet(hTracer, QvCommonTracerLevel_Debug, place.file, place.line, place.function);
    std::fprintf(QvCommonTracer_file(hTracer), "(%s) %s(%d)\n", pKey, QvCommonError_text(status), status);
}

} // namespace qv::database
