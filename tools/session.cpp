#include "session.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_meta.h>
#include <qv_database_c/database_misc.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_text.h>
#include <qv_database_c/protocol_simulator_codecs.h>
#include <qv_json_c/json_reader.h>

#include "calibration_text.h"
#include "output.h"
#include "refusals.h"

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
    if (options.isQuiet) {
        beQuiet();
    }
    QvCommonTracerOpenParam_t param{};
    param.level = QvCommonTracerLevel_Info;
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
    if (!check("open", QvDatabase_open(&param, &handle_))) {
        return false;
    }
    ownVersion_ = version();
    return true;
}

bool Session::openWith(const std::string& name, const Options& options, Input& input)
{
    return open() && readInput(name, options, input) && load(input);
}

bool Session::check(const std::string& what, int status, const std::string& reason)
{
    const std::string first = std::exchange(traces_.firstError, "");
    if (status == 0) {
        // Elements of a document may fail without failing the whole.
        if (!first.empty()) {
            complain(what + ": " + first);
        }
        return true;
    }
    std::string line = what + ": " + QvCommonError_text(status) + " (" + std::to_string(status) + ')';
    if (!reason.empty()) {
        line += ": " + reason;
    } else {
        const std::string text = std::string(QvCommonError_text(status)) + '(' + std::to_string(status) + ')';
        const std::size_t at = first.find(text);
        line += at == std::string::npos ? "" : first.substr(at + text.size());
    }
    complain(line);
    return false;
}

bool Session::load(Input& input)
{
    QvCommonBuffer_t* pBuffer = input.bytes.get();
    pBuffer->offset = 0;
    const std::string before = version();
    int status = 0;
    switch (input.form) {
    case Form::Json:
        status = QvDatabaseText_parse(handle_, pBuffer);
        break;
    case Form::Ini:
        status = QvDatabaseInitialization_parse(handle_, pBuffer);
        break;
    case Form::Image:
        status = QvDatabaseBinary_parse(handle_, pBuffer);
        break;
    case Form::CalibrationText: {
        std::vector<std::string> keys;
        return loadCalibrationText(*this, input, keys);
    }
    }
    if (!check(input.shown(), status, status == 0 ? "" : refusalOf(input, status))) {
        return false;
    }
    const std::string after = version();
    if (after != before && after != ownVersion_) {
        // In bytes that are no image anything may stand there.
        const bool isText =
            std::all_of(after.begin(), after.end(), [](unsigned char c) { return c > ' ' && c < 0x7f; });
        warn(input.shown() + (isText && !after.empty() ? " is of version " + after : " tells no version") +
             ", and this library is of " + ownVersion_);
    }
    return true;
}

std::string Session::version() const
{
    const auto* pMisc = static_cast<const QvDatabaseMisc_t*>(record("MISC"));
    return {pMisc->versionNumber, strnlen(pMisc->versionNumber, sizeof pMisc->versionNumber)};
}

template <typename Save>
bool Session::saveBeside(const std::string& name, Form form, Save save)
{
    const ScratchFolder folder;
    const std::string beside = folder.path() + "/set" + suffixOf(form);
    const std::string shown = shownName(name, false);
    Bytes bytes;
    return check(shown, folder.path().empty() ? QvCommonError_Write : 0) && check(shown, save(beside.c_str())) &&
           check(shown, QvCommonBuffer_load2(beside.c_str(), 0, 0, bytes.get())) && writeOutput(name, bytes.view());
}

bool Session::save(const std::string& name, Form form)
{
    // The library's save is the one that knows when memory was too short for a whole document. Where the name doesn't
    // ask for the form, it saves beside.
    const auto save = [&](const char* pName) { return QvDatabase_save(handle_, pName); };
    if (!isStream(name) && name.ends_with(suffixOf(form)) && (form != Form::Image || isImageName(name))) {
        return check(name, save(name.c_str()));
    }
    return saveBeside(name, form, save);
}

bool Session::loadMeta(Input& input)
{
    const std::string_view text = input.bytes.view();
    QvJsonReaderHandle_t hReader = 0;
    QvJsonValue_t* pDocument = nullptr;
    int status = QvJsonReader_open(&hReader);
    if (status == 0) {
        status = QvJsonReader_parse(hReader, text.data(), text.data() + text.size(), &pDocument);
        QvJsonReader_close(&hReader);
    }
    if (status == 0) {
        auto* pMeta = static_cast<QvDatabaseMeta_t*>(record("MT"));
        status = QvDatabaseProtocolSimulator_meta_parse(pDocument, pMeta);
        if (status == QvCommonError_NoContent) {
            status = QvDatabaseMeta_parse(pDocument, pMeta);
        }
        QvJsonValue_delete(&pDocument);
    }
    return check(input.shown(), status, status == 0 ? "" : refusalOf(input, status));
}

bool Session::saveMeta(const std::string& name)
{
    const auto save = [&](const char* pName) { return QvDatabase_metaSave(handle_, pName); };
    return isStream(name) ? saveBeside(name, Form::Json, save) : check(name, save(name.c_str()));
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
