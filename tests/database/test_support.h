#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <qv_database_c/qv_database.h>
#include <qv_json_c/qv_json.h>

#include "common/files.h"
#include "common/traces.h"

namespace qv::test {

/// An open database that closes itself.
class Database {
public:
    Database();
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    QvDatabaseHandle_t handle() const { return handle_; }

    template <class Record>
    Record& record(const char* pKey) const
    {
        void* pData = nullptr;
        EXPECT_EQ(QvDatabase_query(handle_, pKey, &pData), 0) << pKey;
        return *static_cast<Record*>(pData);
    }

    int load(const std::filesystem::path& file) const { return QvDatabase_load(handle_, file.c_str()); }
    int save(const std::filesystem::path& file) const { return QvDatabase_save(handle_, file.c_str()); }
    /// Loads a text as the content of a file with this name.
    int loadText(const std::string& text, const std::string& name = "text.json") const;
    /// What a save under this name writes.
    std::string savedText(const std::string& name = "text.json") const;

private:
    QvDatabaseHandle_t handle_ = 0;
};

/// The bytes of a record.
std::string recordOf(QvDatabaseHandle_t handle, const std::string& key);
/// All records, one behind the other, but for those that hold addresses.
std::string recordsOf(QvDatabaseHandle_t handle);

/// A struct of the catalog that tells its size.
template <class T>
T sized()
{
    T record{};
    record.size = sizeof record;
    return record;
}

struct DeleteValue {
    void operator()(QvJsonValue_t* pValue) const { QvJsonValue_delete(&pValue); }
};
using JsonValue = std::unique_ptr<QvJsonValue_t, DeleteValue>;

/// The tree of a text; a test that hands in broken text fails.
JsonValue parseJson(const std::string& text);
/// A tree as text, with the decimals and the indent that the database writes.
std::string jsonText(QvJsonValue_t* pValue);
/// The keys of an object, each with a blank behind it.
std::string keysOf(QvJsonValue_t* pObject);
/// A list as text: what it begins with, filled up to a number of items with one and the same.
std::string listOf(std::size_t number, const std::string& item, std::string begin = "");
/// How often a text holds another one.
std::size_t countOf(const std::string& text, const std::string& part);

/// What a serializer writes into an empty object.
template <class Record>
std::string serialized(int (*pSerialize)(Record*, QvJsonValue_t*), Record& record)
{
    JsonValue value = parseJson("{}");
    EXPECT_EQ(pSerialize(&record, value.get()), 0);
    return jsonText(value.get());
}

/// Reads a text with a parser; gives its status.
template <class Record>
int parsed(int (*pParse)(QvJsonValue_t*, Record*), const std::string& text, Record& record)
{
    return pParse(parseJson(text).get(), &record);
}

/// A document without the time at which it was saved.
std::string undated(std::string document);

/// The sample document and its companions in the tree.
std::filesystem::path sample(const std::string& name);

} // namespace qv::test
