// Frame metadata in both of its forms, by way of files: a load gives a known status, a save of what it left can be loaded,
// and from then on stays as it is.

#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

#include <qv_database_c/database_setting.h>

#include "support.h"

using namespace qv::fuzz;
namespace fs = std::filesystem;

namespace {

/// Files in memory, where there is a place for them.
class Folder {
public:
    Folder()
        : path_((fs::exists("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) /
                ("fuzz_metadata_" + std::to_string(getpid())))
    {
        fs::create_directory(path_);
    }
    ~Folder() { fs::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    fs::path file() const { return path_ / "frame.json"; }

private:
    fs::path path_;
};

int load(const fs::path& file, std::string_view content)
{
    std::ofstream(file, std::ios::binary) << content;
    return QvDatabase_metaLoad(Store::instance().handle(), file.c_str());
}

std::string save(const fs::path& file)
{
    fs::remove(file);
    require(QvDatabase_metaSave(Store::instance().handle(), file.c_str()) == 0, "any metadata can be saved");
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    static const Folder folder;
    const std::string_view text(reinterpret_cast<const char*>(pData), size);
    Store& store = Store::instance();
    store.restore();
    const int status = load(folder.file(), text);
    require(status == 0 || status == 6 || status == 7, "a load gives a known status", text);
    if (status == 7) {
        return 0;
    }
    const auto protocol =
        numberOf(text) % 2 == 0 ? QvDatabaseSettingProtocol_Simulator : QvDatabaseSettingProtocol_Standard;
    auto& setting = *reinterpret_cast<QvDatabaseSetting_t*>(store.record("ST"));
    setting.protocol = protocol;
    const std::string raw = save(folder.file());
    const int again = load(folder.file(), raw);
    require(again == 0, "what was saved can be loaded", raw);
    store.settle();
    const std::string settled = save(folder.file());
    store.restore();
    setting.protocol = protocol;
    require(load(folder.file(), settled) == 0, "what is sound can be loaded", settled);
    requireSame(save(folder.file()), settled, "what was loaded is saved as it was");
    return 0;
}
