#include "session.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_text.h>

#include "output.h"

namespace qv::tools {
namespace {

/// The end of a name by which a save takes a form; none for an image.
const char* suffixOf(Form form)
{
    return form == Form::Json ? ".json" : (form == Form::Ini ? ".ini" : "");
}

bool isImageName(const std::string& name)
{
    return !name.ends_with(".json") && !name.ends_with(".ini");
}

/// A folder of its own for one file, taken away at the end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::error_code error;
        std::string name = (std::filesystem::temp_directory_path(error) / "qvdb.XXXXXX").string();
        if (!error && mkdtemp(name.data()) != nullptr) {
            path_ = name;
        }
    }
    ~ScratchFolder()
    {
        std::error_code error;
        if (!path_.empty()) {
            std::filesystem::remove_all(path_, error);
        }
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// Empty where none could be made.
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

} // namespace

Tracing::Tracing(const Options& options)
{
    traces_.isVerbose = options.isVerbose;
    QvCommonTracerOpenParam_t param{};
    param.level = options.isVerbose ? QvCommonTracerLevel_Debug : QvCommonTracerLevel_Info;
    param.pWrite = &Traces::write;
    param.pUserData = &traces_;
    QvCommonTracer_open(&param, &hTracer);
}

Tracing::~Tracing()
{
    if (hTracer != 0) {
        QvCommonTracer_close(&hTracer);
    }
}

Session::~Session()
{
    if (handle_ != 0) {
        QvDatabase_close(&handle_);
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
    const std::string text = std::string(QvCommonError_text(status)) + '(' + std::to_string(status) + ')';
    const std::size_t at = traces_.firstError.find(text);
    const std::string detail = at == std::string::npos ? "" : traces_.firstError.substr(at + text.size());
    traces_.firstError.clear();
    complain(what + ": " + QvCommonError_text(status) + " (" + std::to_string(status) + ')' + detail);
    return false;
}

bool Session::load(Input& input)
{
    QvCommonBuffer_t* pBuffer = input.bytes.get();
    pBuffer->offset = 0;
    switch (input.form) {
    case Form::Json:
        return check(input.shown(), QvDatabaseText_parse(handle_, pBuffer));
    case Form::Ini:
        return check(input.shown(), QvDatabaseInitialization_parse(handle_, pBuffer));
    case Form::Image:
        return check(input.shown(), QvDatabaseBinary_parse(handle_, pBuffer));
    case Form::CalibrationText:
        break;
    }
    complain(input.shown() + ": a plain calibration text can only be converted");
    return false;
}

bool Session::save(const std::string& name, Form form)
{
    // The library's save is the one that knows when memory was too short for a whole document. Where the name doesn't
    // ask for the form, it saves beside.
    if (!isStream(name) && name.ends_with(suffixOf(form)) && (form != Form::Image || isImageName(name))) {
        return check(name, QvDatabase_save(handle_, name.c_str()));
    }
    const ScratchFolder folder;
    const std::string beside = folder.path() + "/set" + suffixOf(form);
    Bytes bytes;
    return check(shownName(name, false), folder.path().empty() ? QvCommonError_Write : 0) &&
           check(shownName(name, false), QvDatabase_save(handle_, beside.c_str())) &&
           check(shownName(name, false), QvCommonBuffer_load2(beside.c_str(), 0, 0, bytes.get())) &&
           writeOutput(name, bytes.view());
}

bool Session::setProtocol(const std::string& name)
{
    static_cast<QvDatabaseSetting_t*>(record("ST"))->protocol =
        name == "simulator" ? QvDatabaseSettingProtocol_Simulator : QvDatabaseSettingProtocol_Standard;
    return true;
}

void* Session::record(const char* pKey) const
{
    void* pData = nullptr;
    QvDatabase_query(handle_, pKey, &pData);
    return pData;
}

} // namespace qv::tools
