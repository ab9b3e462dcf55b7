#include "session.h"

#include <cstdio>
#include <cstring>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_setting.h>

namespace qv::tools {

Session::Session(const Options& options)
{
    traces_.isVerbose = options.isVerbose;
    traces_.showsInfo = options.command == "info";
    QvCommonTracerOpenParam_t param{};
    param.level = options.isVerbose ? QvCommonTracerLevel_Debug : QvCommonTracerLevel_Info;
    param.pWrite = &Traces::write;
    param.pUserData = &traces_;
    QvCommonTracer_open(&param, &hTracer);
}

Session::~Session()
{
    if (handle_ != 0) {
        QvDatabase_close(&handle_);
    }
    if (hTracer != 0) {
        QvCommonTracer_close(&hTracer);
    }
}

bool Session::open()
{
    QvDatabaseOpenParam_t param{};
    return check("open", QvDatabase_open(&param, &handle_));
}

bool Session::check(const std::string& what, int status)
{
    if (status == 0) {
        // Elements of a document may fail without failing the whole.
        if (!traces_.isVerbose && !traces_.firstError.empty()) {
            std::fprintf(stderr, "%s\n", traces_.firstError.c_str());
        }
        traces_.firstError.clear();
        return true;
    }
    char text[128];
    std::snprintf(text, sizeof text, "%s(%d)", QvCommonError_text(status), status);
    const std::size_t at = traces_.firstError.find(text);
    const std::string detail = at == std::string::npos ? "" : traces_.firstError.substr(at + std::strlen(text));
    std::fflush(stdout);
    std::fprintf(stderr, "qvdb: %s: %s (%d)%s\n", what.c_str(), QvCommonError_text(status), status, detail.c_str());
    return false;
}

bool Session::load(const std::string& name)
{
    return check(name, QvDatabase_load(handle_, name.c_str()));
}

bool Session::setProtocol(bool isSimulator)
{
    void* pData = nullptr;
    if (!check("ST", QvDatabase_query(handle_, "ST", &pData))) {
        return false;
    }
    static_cast<QvDatabaseSetting_t*>(pData)->protocol =
        isSimulator ? QvDatabaseSettingProtocol_Simulator : QvDatabaseSettingProtocol_Standard;
    return true;
}

} // namespace qv::tools
