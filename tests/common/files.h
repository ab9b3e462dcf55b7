#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace qv::test {

inline std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A folder of its own, removed at the end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "qv_scratch.XXXXXX";
        path_ = mkdtemp(name.data());
    }
    ~ScratchFolder() { std::filesystem::remove_all(path_); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }
    /// How many stand in it.
    long files() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

private:
    std::filesystem::path path_;
};

} // namespace qv::test
