#include "reload.h"

#include <string>

#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_text.h>

namespace qv::tools {
namespace {

/// Drops traces as long as it lives.
class Silence {
public:
    Silence() : before_(hTracer)
    {
        QvCommonTracerOpenParam_t param{};
        param.level = QvCommonTracerLevel_Error;
        param.pWrite = [](void*, QvCommonTracerLevel_t, const char*, std::size_t) { return 0; };
        hTracer = 0;
        QvCommonTracer_open(&param, &hTracer);
    }
    ~Silence()
    {
        QvCommonTracer_close(&hTracer);
        hTracer = before_;
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    QvCommonTracerHandle_t before_;
};

} // namespace

bool reload(std::string_view bytes, Form form, const Session& session)
{
    const Silence silence;
    std::string copy(bytes);
    QvCommonBuffer_t buffer{};
    buffer.pBegin = copy.data();
    buffer.size = copy.size();
    switch (form) {
    case Form::Json:
        return QvDatabaseText_parse(session.handle(), &buffer) == 0;
    case Form::Ini:
        return QvDatabaseInitialization_parse(session.handle(), &buffer) == 0;
    default:
        return QvDatabaseBinary_parse(session.handle(), &buffer) == 0;
    }
}

} // namespace qv::tools
