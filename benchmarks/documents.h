// What is measured on: documents with their files in a folder, and a database that closes itself.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <qv_common_c/common_buffer.h>
#include <qv_database_c/qv_database.h>
#include <qv_json_c/json_reader.h>
#include <qv_json_c/json_value.h>

namespace qv::benchmark {

/// An open database.
class Database {
public:
    Database();
    explicit Database(const std::string& filename) : Database() { load(filename); }
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    QvDatabaseHandle_t handle() const { return handle_; }
    void load(const std::string& filename);
    void save(const std::string& filename);
    void* record(const char* pKey) const;

private:
    QvDatabaseHandle_t handle_ = 0;
};

/// A reader of JSON and the trees that it gives.
class Reader {
public:
    Reader();
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// The tree of a text; the caller deletes it.
    QvJsonValue_t* parse(const std::string& text) const;

private:
    QvJsonReaderHandle_t handle_ = 0;
};

/// A folder that goes with the object, in memory where the system has such a file system; or one that is there and stays.
class Folder {
public:
    Folder();
    explicit Folder(std::filesystem::path path) : path_(std::move(path)), isKept_(true) {}
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
    bool isKept_ = false;
};

/// One set of parameters in all three forms.
struct Document {
    std::string name;
    std::string text; ///< what `json` holds
    std::string json; ///< the files
    std::string initialization;
    std::string image;
    std::string output; ///< a name, but for its end, for what is saved
};

/// "sample", the parameters of a real sensor, and "full": the same with made-up values in all lists and fields of tuning
/// and calibration, each schedule with all its rows.
std::vector<Document> makeDocuments(const Folder& folder);

std::string readFile(const std::string& filename);
void writeFile(const std::string& filename, const std::string& content);

} // namespace qv::benchmark
