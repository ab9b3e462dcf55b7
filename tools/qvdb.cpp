// qvdb: converts and shows database files. Thin, on the public interface alone.

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <qv_common_c/common_error.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/qv_database.h>

namespace {

constexpr const char* kUsage =
    "usage: qvdb convert IN... OUT [--protocol simulator|standard] [-v]\n"
    "       qvdb info [FILE...] [-v]\n"
    "       qvdb meta IN OUT [--protocol simulator|standard] [-v]\n"
    "\n"
    "convert  loads the files in order and saves them as one: .json a text document, .ini an initialization\n"
    "         file, any other name a binary image\n"
    "info     loads the files and shows the calibration's summary and what each category came to\n"
    "meta     converts frame metadata between its two JSON forms\n"
    "\n"
    "--protocol  the JSON form to save: standard (a tuning document, the default) or simulator\n"
    "-v          shows what the library does, down to each member that a document lacks\n"
    "\n"
    "Exit status: 0 done, 1 the library refused, 2 usage.\n";

enum ExitStatus { kDone = 0, kRefused = 1, kUsageError = 2 };

struct Options {
    std::string command;
    std::vector<std::string> files;
    bool isSimulator = false;
    bool isVerbose = false;
};

/// Sorts the library's trace lines: results of `info` to standard output, the rest to standard error. The first line of
/// an error is kept, since it names the place; the others, one for each level that the failure passes, only with -v.
struct Traces {
    bool isVerbose = false;
    bool showsInfo = false;
    std::string firstError;

    static int write(void* pUserData, QvCommonTracerLevel_t level, const char* pText, size_t length)
    {
        auto& self = *static_cast<Traces*>(pUserData);
        const std::string_view line{pText, length};
        constexpr std::string_view kInfo = "info: ";
        if (level == QvCommonTracerLevel_Info && self.showsInfo) {
            const std::string_view text = line.starts_with(kInfo) ? line.substr(kInfo.size()) : line;
            std::printf("%.*s\n", static_cast<int>(text.size()), text.data());
        } else if (self.isVerbose || level == QvCommonTracerLevel_Warning) {
            std::fprintf(stderr, "%s\n", pText);
        }
        if (level == QvCommonTracerLevel_Error && self.firstError.empty()) {
            self.firstError = line;
        }
        return 0;
    }
};

/// The tracer and a database, both released at the end.
class Session {
public:
    explicit Session(const Options& options)
    {
        traces_.isVerbose = options.isVerbose;
        traces_.showsInfo = options.command == "info";
        QvCommonTracerOpenParam_t param{};
        param.level = options.isVerbose ? QvCommonTracerLevel_Debug : QvCommonTracerLevel_Info;
        param.pWrite = &Traces::write;
        param.pUserData = &traces_;
        QvCommonTracer_open(&param, &hTracer);
    }
    ~Session()
    {
        if (handle_ != 0) {
            QvDatabase_close(&handle_);
        }
        if (hTracer != 0) {
            QvCommonTracer_close(&hTracer);
        }
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    QvDatabaseHandle_t handle() const { return handle_; }

    bool open()
    {
        QvDatabaseOpenParam_t param{};
        return check("open", QvDatabase_open(&param, &handle_));
    }

    /// Tells a failure in one line: what it was about, the status, and the place in the file where the library named
    /// it.
    bool check(const std::string& what, int status)
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

    /// From here on the library's lines at Info are no results.
    void hideInfo() { traces_.showsInfo = false; }

    bool load(const std::string& name) { return check(name, QvDatabase_load(handle_, name.c_str())); }

    bool setProtocol(bool isSimulator)
    {
        void* pData = nullptr;
        if (!check("ST", QvDatabase_query(handle_, "ST", &pData))) {
            return false;
        }
        static_cast<QvDatabaseSetting_t*>(pData)->protocol =
            isSimulator ? QvDatabaseSettingProtocol_Simulator : QvDatabaseSettingProtocol_Standard;
        return true;
    }

private:
    Traces traces_;
    QvDatabaseHandle_t handle_ = 0;
};

ExitStatus convert(const Options& options)
{
    Session session(options);
    if (!session.open() || !session.setProtocol(options.isSimulator)) {
        return kRefused;
    }
    const std::string& out = options.files.back();
    for (std::size_t i = 0; i + 1 < options.files.size(); ++i) {
        if (!session.load(options.files[i])) {
            return kRefused;
        }
        std::printf("loaded %s\n", options.files[i].c_str());
    }
    if (!session.check(out, QvDatabase_save(session.handle(), out.c_str()))) {
        return kRefused;
    }
    std::printf("saved %s\n", out.c_str());
    return kDone;
}

ExitStatus meta(const Options& options)
{
    Session session(options);
    if (!session.open() || !session.setProtocol(options.isSimulator)) {
        return kRefused;
    }
    const std::string& in = options.files[0];
    const std::string& out = options.files[1];
    if (!session.check(in, QvDatabase_metaLoad(session.handle(), in.c_str())) ||
        !session.check(out, QvDatabase_metaSave(session.handle(), out.c_str()))) {
        return kRefused;
    }
    std::printf("saved %s\n", out.c_str());
    return kDone;
}

/// One line a category: whether the files changed its record from the defaults that an open database begins with.
ExitStatus showCategories(Session& session)
{
    session.hideInfo(); // the second database would print its banner as well
    QvDatabaseHandle_t fresh = 0;
    QvDatabaseOpenParam_t param{};
    if (!session.check("open", QvDatabase_open(&param, &fresh))) {
        return kRefused;
    }
    std::printf("\n%-11s %8s  %-8s  %s\n", "category", "bytes", "state", "record");
    ExitStatus result = kDone;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        void* pLoaded = nullptr;
        void* pDefault = nullptr;
        if (!session.check(pCategory->pKey, QvDatabase_query(session.handle(), pCategory->pKey, &pLoaded)) ||
            !session.check(pCategory->pKey, QvDatabase_query(fresh, pCategory->pKey, &pDefault))) {
            result = kRefused;
            break;
        }
        const bool isRunTime = std::strcmp(pCategory->pKey, "RAM") == 0;
        const bool isDefault = std::memcmp(pLoaded, pDefault, pCategory->size) == 0;
        std::printf("%-11s %8zu  %-8s  %s\n", pCategory->pKey, pCategory->size,
                    isRunTime ? "run time" : (isDefault ? "default" : "changed"), pCategory->pRecord);
    }
    QvDatabase_close(&fresh);
    return result;
}

ExitStatus info(const Options& options)
{
    Session session(options);
    if (!session.open()) {
        return kRefused;
    }
    for (const std::string& name : options.files) {
        if (!session.load(name)) {
            return kRefused;
        }
    }
    if (!session.check("info", QvDatabase_info(session.handle()))) {
        return kRefused;
    }
    return showCategories(session);
}

/// False: the words don't make a command.
bool readOptions(int argc, char* argv[], Options& options)
{
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "-v") {
            options.isVerbose = true;
        } else if (word == "--protocol") {
            const std::string_view name = i + 1 < argc ? argv[++i] : "";
            if (name != "simulator" && name != "standard") {
                return false;
            }
            options.isSimulator = name == "simulator";
        } else if (word.size() > 1 && word.front() == '-') {
            return false;
        } else if (options.command.empty()) {
            options.command = word;
        } else {
            options.files.emplace_back(word);
        }
    }
    return true;
}

ExitStatus run(const Options& options)
{
    if (options.command == "convert" && options.files.size() >= 2) {
        return convert(options);
    }
    if (options.command == "meta" && options.files.size() == 2) {
        return meta(options);
    }
    if (options.command == "info") {
        return info(options);
    }
    std::fputs(kUsage, stderr);
    return kUsageError;
}

} // namespace

int main(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::fputs(kUsage, stdout);
            return kDone;
        }
    }
    Options options;
    if (!readOptions(argc, argv, options)) {
        std::fputs(kUsage, stderr);
        return kUsageError;
    }
    return run(options);
}
