#include "test_support.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>

#include <qv_database_c/database_dump.h>

namespace qv::test {

Traces::Traces(QvCommonTracerLevel_t level)
{
    QvCommonTracerOpenParam_t param{};
    param.level = level;
    param.pUserData = &lines_;
    param.pWrite = [](void* pUserData, QvCommonTracerLevel_t lineLevel, const char* pText, size_t length) {
        static_cast<std::vector<TraceLine>*>(pUserData)->push_back({lineLevel, std::string(pText, length)});
        return 0;
    };
    EXPECT_EQ(QvCommonTracer_open(&param, &hTracer), 0);
}

Traces::~Traces()
{
    QvCommonTracer_close(&hTracer);
}

std::size_t Traces::count(QvCommonTracerLevel_t level, const std::string& text) const
{
    return static_cast<std::size_t>(std::count_if(lines_.begin(), lines_.end(), [&](const TraceLine& line) {
        return line.level == level && line.text.find(text) != std::string::npos;
    }));
}

std::string Traces::take()
{
    std::string text;
    for (const TraceLine& line : lines_) {
        text += line.text + "\n";
    }
    lines_.clear();
    return text;
}

Database::Database()
{
    std::optional<Traces> quiet; // the banner of each open database would bury what tests print
    if (hTracer == 0) {
        quiet.emplace(QvCommonTracerLevel_Warning);
    }
    QvDatabaseOpenParam_t param{};
    EXPECT_EQ(QvDatabase_open(&param, &handle_), 0);
}

Database::~Database()
{
    // The array is the application's to release: neither a reset nor a close does.
    auto& dump = record<QvDatabaseDump_t>("DUMP");
    std::free(dump.pRegisters);
    dump.pRegisters = nullptr;
    EXPECT_EQ(QvDatabase_close(&handle_), 0);
}

int Database::loadText(const std::string& text, const std::string& name) const
{
    TemporaryFolder folder;
    writeFile(folder / name, text);
    return load(folder / name);
}

std::string Database::savedText(const std::string& name) const
{
    TemporaryFolder folder;
    EXPECT_EQ(save(folder / name), 0);
    return readFile(folder / name);
}

std::string recordOf(QvDatabaseHandle_t handle, const std::string& key)
{
    void* pData = nullptr;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        if (pCategory->pKey == key && QvDatabase_query(handle, pCategory->pKey, &pData) == 0) {
            return {static_cast<const char*>(pData), pCategory->size};
        }
    }
    return "";
}

std::string recordsOf(QvDatabaseHandle_t handle)
{
    std::string text;
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        const std::string key = pCategory->pKey;
        if (key != "RAM" && key != "DUMP") {
            text += recordOf(handle, key);
        }
    }
    return text;
}

TemporaryFolder::TemporaryFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "qv_test_XXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) {
        path_ = name;
    }
    EXPECT_FALSE(path_.empty());
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

JsonValue parseJson(const std::string& text)
{
    QvJsonReaderHandle_t hReader = 0;
    QvJsonValue_t* pValue = nullptr;
    EXPECT_EQ(QvJsonReader_open(&hReader), 0);
    EXPECT_EQ(QvJsonReader_parse(hReader, text.data(), text.data() + text.size(), &pValue), 0) << text;
    EXPECT_EQ(QvJsonReader_close(&hReader), 0);
    return JsonValue(pValue);
}

std::string jsonText(QvJsonValue_t* pValue)
{
    QvJsonWriterOpenParam_t param{};
    param.decimals = 6;
    std::memcpy(param.indent, "  ", 2);
    QvJsonWriterHandle_t hWriter = 0;
    char* pText = nullptr;
    EXPECT_EQ(QvJsonWriter_open(&param, &hWriter), 0);
    EXPECT_EQ(QvJsonWriter_stringify(hWriter, pValue, &pText), 0);
    EXPECT_EQ(QvJsonWriter_close(&hWriter), 0);
    std::string text = pText == nullptr ? "" : pText;
    std::free(pText);
    return text;
}

std::string keysOf(QvJsonValue_t* pObject)
{
    std::string keys;
    for (std::size_t i = 0; i < pObject->holder.pObject->number; ++i) {
        keys += std::string(pObject->holder.pObject->pPairs[i].pKey) + " ";
    }
    return keys;
}

std::string listOf(std::size_t number, const std::string& item, std::string begin)
{
    for (std::size_t i = countOf(begin, ","); i < number; ++i) {
        begin += item + ",";
    }
    begin.back() = ']';
    return "[" + begin;
}

std::size_t countOf(const std::string& text, const std::string& part)
{
    std::size_t number = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++number;
    }
    return number;
}

std::string readFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const std::filesystem::path& file, const std::string& content)
{
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    EXPECT_TRUE(stream.flush()) << file;
}

std::string undated(std::string document)
{
    const std::size_t date = document.find("\"exportDate\"");
    return date == std::string::npos ? document
                                     : document.replace(date, document.find('\n', date) - date, "\"exportDate\": \"\"");
}

std::filesystem::path sample(const std::string& name)
{
    return std::filesystem::path(QV_SOURCE_DIR) / "examples" / "documents" / name;
}

} // namespace qv::test
