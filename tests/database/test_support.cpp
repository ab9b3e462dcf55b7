#include "test_support.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>

#include <qv_database_c/database_dump.h>

namespace qv::test {

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
