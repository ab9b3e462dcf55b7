#include "documents.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_dump.h>

#include "measure.h"

namespace qv::benchmark {
namespace {

using Cursor = QvDatabaseCatalogCursor_t;
using Field = QvDatabaseCatalogField_t;

constexpr const char* kSample = QV_SOURCE_DIR "/examples/documents/imx477";

template <class T>
void store(char* pPlace, T value)
{
    std::memcpy(pPlace, &value, sizeof value);
}

/// Puts made-up values into what one document carries of a category, as the catalog describes it.
class Filler {
public:
    Filler(const Database& database, QvDatabaseCatalogDocument_t document, const char* pKey, std::mt19937& random)
        : document_(document), pRecord_(static_cast<char*>(database.record(pKey))), random_(random)
    {
        Cursor cursor{};
        cursor.size = sizeof cursor;
        check(QvDatabaseCatalog_walk(document, pKey, &cursor) == 0, pKey);
        members(cursor, 0, pKey);
    }

private:
    /// The members that stand `depth` deep from the cursor on.
    void members(Cursor& cursor, std::size_t depth, const std::string& path)
    {
        Field field{};
        field.size = sizeof field;
        for (Cursor ahead = cursor; QvDatabaseCatalog_next(&ahead, &field) == 0 && field.depth == depth;
             ahead = cursor) {
            cursor = ahead;
            const std::string name = path + "." + field.pKey;
            if (field.count == QvDatabaseCatalogCount_Heap) {
                continue; // it lies outside the record; what was loaded stays
            }
            if (field.element != QvDatabaseCatalogElement_Record) {
                values(field, name);
                continue;
            }
            const Cursor inside = cursor;
            for (std::size_t i = 0; i < field.extents[0]; ++i) {
                cursor = inside;
                members(cursor, depth + 1, field.rank == 0 ? name : name + "[" + std::to_string(i) + "]");
            }
            if (field.counterWidth != 0) {
                // The counter is a member of the same record as the list.
                char* pCounter = pRecord_ + find(name).offset - field.offset + field.counterOffset;
                std::memcpy(pCounter, &field.extents[0], field.counterWidth);
            }
        }
    }

    QvDatabaseCatalogPlace_t find(const std::string& path) const
    {
        QvDatabaseCatalogPlace_t place{};
        place.size = sizeof place;
        check(QvDatabaseCatalog_find(document_, path.c_str(), &place) == 0, path);
        return place;
    }

    void values(const Field& field, const std::string& path)
    {
        const QvDatabaseCatalogPlace_t place = find(path);
        for (std::size_t i = 0; i < place.length / field.width; ++i) {
            value(field, pRecord_ + place.offset + i * field.width, i);
        }
    }

    void value(const Field& field, char* pPlace, std::size_t index)
    {
        switch (field.element) {
        case QvDatabaseCatalogElement_Bool:
            store(pPlace, random_() % 2 == 0);
            break;
        case QvDatabaseCatalogElement_Integer: {
            // Little-endian, so the low bytes stand first. No register holds more than 16 bits.
            const double most = field.width == 1 ? 255 : 65535;
            const double number =
                field.isSigned ? between(field, (1 - most) / 2, (most - 1) / 2) : between(field, 0, most);
            const auto integer = static_cast<std::int64_t>(std::round(number));
            std::memcpy(pPlace, &integer, field.width);
            break;
        }
        case QvDatabaseCatalogElement_Float:
        case QvDatabaseCatalogElement_Double: {
            const double number = field.role == QvDatabaseCatalogRole_GainAxis
                                      ? std::exp2(static_cast<double>(index) * 0.5)
                                      : between(field, -100, 100);
            if (field.element == QvDatabaseCatalogElement_Float) {
                store(pPlace, static_cast<float>(number));
            } else {
                store(pPlace, number);
            }
            break;
        }
        case QvDatabaseCatalogElement_Text: {
            const std::string text = "profile " + std::to_string(random_() % 1000);
            std::memset(pPlace, 0, field.width);
            std::memcpy(pPlace, text.data(), std::min(text.size(), field.width - 1));
            break;
        }
        default:
            break;
        }
    }

    double between(const Field& field, double low, double high)
    {
        if (std::isfinite(field.minimum) && std::isfinite(field.maximum)) {
            low = field.minimum;
            high = std::min(field.maximum, low + 65535);
        }
        return std::uniform_real_distribution<double>(low, high)(random_);
    }

    QvDatabaseCatalogDocument_t document_;
    char* pRecord_;
    std::mt19937& random_;
};

void fill(const Database& database)
{
    std::mt19937 random(477);
    QvDatabaseCatalogCategory_t category{};
    category.size = sizeof category;
    for (std::size_t i = 0; QvDatabaseCatalog_category(QvDatabaseCatalogDocument_Tuning, i, &category) == 0; ++i) {
        // The sensor keeps its own: the state of a driver would outweigh all that is tuned.
        if (std::string_view(category.pKey) != "SS") {
            const Filler filler(database, QvDatabaseCatalogDocument_Tuning, category.pKey, random);
        }
    }
    const Filler filler(database, QvDatabaseCatalogDocument_Calibration, "CLB", random);
}

Document named(const Folder& folder, const std::string& name)
{
    return {name,
            {},
            folder.file(name + ".json"),
            folder.file(name + ".ini"),
            folder.file(name + ".bin"),
            folder.file(name + "_saved")};
}

} // namespace

Database::Database()
{
    QvDatabaseOpenParam_t param{};
    check(QvDatabase_open(&param, &handle_) == 0, "open");
}

Database::~Database()
{
    // The list of registers is the only memory that the database doesn't release itself.
    auto* pDump = static_cast<QvDatabaseDump_t*>(record("DUMP"));
    std::free(pDump->pRegisters);
    QvDatabaseDump_reset(pDump);
    QvDatabase_close(&handle_);
}

void Database::load(const std::string& filename)
{
    check(QvDatabase_load(handle_, filename.c_str()) == 0, filename);
}

void Database::save(const std::string& filename)
{
    check(QvDatabase_save(handle_, filename.c_str()) == 0, filename);
}

void* Database::record(const char* pKey) const
{
    void* pData = nullptr;
    check(QvDatabase_query(handle_, pKey, &pData) == 0, pKey);
    return pData;
}

Reader::Reader()
{
    check(QvJsonReader_open(&handle_) == 0, "open");
}

Reader::~Reader()
{
    QvJsonReader_close(&handle_);
}

QvJsonValue_t* Reader::parse(const std::string& text) const
{
    QvJsonValue_t* pTree = nullptr;
    check(QvJsonReader_parse(handle_, text.data(), text.data() + text.size(), &pTree) == 0, "parse");
    return pTree;
}

Folder::Folder()
{
    const std::filesystem::path memory = "/dev/shm";
    const auto parent = access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
    std::string name = (parent / "qv_benchmark.XXXXXX").string();
    check(mkdtemp(name.data()) != nullptr, name);
    path_ = name;
}

Folder::~Folder()
{
    if (!isKept_) {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
}

std::string readFile(const std::string& filename)
{
    std::ifstream file(filename, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    check(!content.empty(), filename);
    return content;
}

void writeFile(const std::string& filename, const std::string& content)
{
    std::ofstream file(filename, std::ios::binary);
    file << content;
    file.close();
    check(file.good(), filename);
}

std::vector<Document> makeDocuments(const Folder& folder)
{
    const std::string sampleName = kSample;
    Document sample = named(folder, "sample");
    sample.text = readFile(sampleName + ".json");
    writeFile(sample.json, sample.text);
    writeFile(sample.initialization, readFile(sampleName + ".ini"));
    Database database(sample.json);
    database.load(sample.initialization);
    database.save(sample.image);

    Document full = named(folder, "full");
    fill(database);
    database.save(full.json);
    database.save(full.initialization);
    database.save(full.image);
    full.text = readFile(full.json);
    return {sample, full};
}

} // namespace qv::benchmark
