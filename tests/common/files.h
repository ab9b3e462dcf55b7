#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace qv::test {

inline std::string readFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeFile(const std::filesystem::path& file, const std::string& content)
{
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    EXPECT_TRUE(stream.flush()) << file;
}

/// A folder of its own for each test, removed at the end.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "qv_test_XXXXXX";
        if (mkdtemp(name.data()) != nullptr) {
            path_ = name;
        }
        EXPECT_FALSE(path_.empty());
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }
    /// How many stand in it.
    long files() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

private:
    std::filesystem::path path_;
};

} // namespace qv::test
