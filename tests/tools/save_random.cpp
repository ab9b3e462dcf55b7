// save_random FOLDER NUMBER: fills databases with random values and saves each in every form, so that whatever
// describes the forms can be held against what the library really writes.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <qv_database_c/database_catalog.h>
#include <qv_database_c/qv_database.hpp>

#include "catalog_tree.h"

namespace {

using Field = QvDatabaseCatalogField_t;
using qv::tools::FieldNode;

void need(int status, const std::string& what)
{
    if (status != 0) {
        throw qv::Error(what, status);
    }
}

/// Random values inside type and range of a field, ends and odd cases more often than chance would give them.
class Values {
public:
    explicit Values(unsigned seed) : engine_(seed) {}

    std::uint64_t below(std::uint64_t end) { return engine_() % end; }

    std::string text(const Field& field)
    {
        switch (field.element) {
        case QvDatabaseCatalogElement_Bool:
            return below(2) == 0 ? "false" : "true";
        case QvDatabaseCatalogElement_Integer:
            return integer(field);
        case QvDatabaseCatalogElement_Float:
            return real(std::numeric_limits<float>::max());
        case QvDatabaseCatalogElement_Double:
            return real(1e300);
        default:
            return characters(field.width - 1);
        }
    }

private:
    std::string integer(const Field& field)
    {
        if (field.valueNumber != 0) {
            QvDatabaseCatalogValue_t value{};
            value.size = sizeof value;
            QvDatabaseCatalog_value(&field, below(field.valueNumber), &value);
            return value.pName;
        }
        if (field.role == QvDatabaseCatalogRole_CountOf && !std::isinf(field.maximum)) {
            const auto most = static_cast<std::uint64_t>(field.maximum);
            const std::uint64_t counts[] = {0, 1, (most + 1) / 2, most};
            return std::to_string(counts[below(std::size(counts))]);
        }
        if (!std::isinf(field.minimum)) {
            const auto number = static_cast<std::uint64_t>(field.maximum - field.minimum) + 1;
            return std::to_string(static_cast<std::int64_t>(field.minimum) + static_cast<std::int64_t>(below(number)));
        }
        const unsigned unused = 64 - 8 * static_cast<unsigned>(field.width);
        const std::uint64_t most = UINT64_MAX >> unused;
        const std::uint64_t picks[] = {0, 1, most / 2, most / 2 + 1, most, engine_() & most};
        const std::uint64_t bits = picks[below(std::size(picks))];
        return field.isSigned ? std::to_string(static_cast<std::int64_t>(bits << unused) >> unused)
                              : std::to_string(bits);
    }

    std::string real(double most)
    {
        const double picks[] = {0, 1, -0.25, most, -most, 1e-7, static_cast<double>(below(2000000)) / 1000 - 1000};
        char text[32];
        std::snprintf(text, sizeof text, "%.9g", picks[below(std::size(picks))]);
        return text;
    }

    std::string characters(std::size_t most)
    {
        constexpr const char* kCharacters[] = {"a", "Z", "7", " ", "\"", "\\", "/", "\n", "\x01", "é", "€"};
        const std::size_t length = below(3) == 0 ? most : below(most + 1);
        std::string text;
        for (;;) {
            const char* pNext = kCharacters[below(std::size(kCharacters))];
            if (text.size() + std::char_traits<char>::length(pNext) > length) {
                return text;
            }
            text += pNext;
        }
    }

    std::mt19937_64 engine_;
};

/// Sets the fields of a database one by one through the catalog.
class Filler {
public:
    Filler(const qv::Database& database, Values& values, std::size_t heapLength)
        : handle_(database.handle()), values_(values), heapLength_(heapLength)
    {
    }

    void fill(QvDatabaseCatalogDocument_t document, const QvDatabaseCatalogCategory_t& category)
    {
        document_ = document;
        pRecord_ = nullptr;
        need(QvDatabase_query(handle_, category.pKey, &pRecord_), category.pKey);
        fillFields(category.pKey, qv::tools::fieldsOf(document, category));
    }

private:
    void fillFields(const std::string& path, const std::vector<FieldNode>& nodes)
    {
        for (const FieldNode& node : nodes) {
            const Field& field = node.field;
            // A list on the heap, and its length, are made by a load.
            const bool isLength = field.role == QvDatabaseCatalogRole_CountOf && std::isinf(field.maximum);
            if (field.element != QvDatabaseCatalogElement_Pointer && !isLength) {
                fillField(path + "." + field.pKey, node, 0);
            }
        }
    }

    /// A list in its dimensions, down to records and single elements.
    void fillField(const std::string& path, const FieldNode& node, std::size_t dimension)
    {
        if (dimension < std::min(node.field.rank, std::size(node.field.extents))) {
            const bool isOnHeap = node.field.count == QvDatabaseCatalogCount_Heap;
            const std::size_t length = isOnHeap ? heapLength_ : node.field.extents[dimension];
            for (std::size_t i = 0; i < length; ++i) {
                fillField(path + "[" + std::to_string(i) + "]", node, dimension + 1);
            }
        } else if (node.field.element == QvDatabaseCatalogElement_Record) {
            fillFields(path, node.fields);
        } else {
            QvDatabaseCatalogPlace_t place{};
            place.size = sizeof place;
            need(QvDatabaseCatalog_find(document_, path.c_str(), &place), path);
            const std::string text = values_.text(node.field);
            need(QvDatabaseCatalog_setText(&place, pRecord_, text.c_str()), path + " = " + text);
        }
    }

    QvDatabaseHandle_t handle_;
    Values& values_;
    std::size_t heapLength_;
    QvDatabaseCatalogDocument_t document_ = QvDatabaseCatalogDocument_Memory;
    void* pRecord_ = nullptr;
};

/// Everything that files carry; the rest is a matter of run time.
void fillDatabase(qv::Database& database, Values& values, const std::string& folder)
{
    // Only a load makes the list of DUMP.
    const std::size_t registers = values.below(4);
    std::string items;
    for (std::size_t i = 0; i < registers; ++i) {
        items += i == 0 ? "{}" : ", {}";
    }
    std::ofstream(folder + "registers.json") << R"({"tuning": {"DUMP": {"registers": [)" << items << "]}}}";
    database.load(folder + "registers.json");
    Filler filler(database, values, registers);
    for (const auto& category : qv::tools::categoriesOf(QvDatabaseCatalogDocument_Memory)) {
        if (category.documents != 1U << QvDatabaseCatalogDocument_Memory) {
            filler.fill(QvDatabaseCatalogDocument_Memory, category);
        }
    }
    for (const auto& category : qv::tools::categoriesOf(QvDatabaseCatalogDocument_Tuning)) {
        if (std::string(category.pKey) == "DUMP") {
            filler.fill(QvDatabaseCatalogDocument_Tuning, category);
        }
    }
}

void saveAll(qv::Database& database, const std::string& folder, const std::string& number)
{
    auto& setting = database.get<QvDatabaseSetting_t>();
    setting.protocol = QvDatabaseSettingProtocol_Standard;
    // First of all: the save of a text notes its time, which the image would hold.
    database.save(folder + "image" + number + ".bin");
    database.save(folder + "tuning" + number + ".json");
    database.save(folder + "section" + number + ".ini");
    database.metaSave(folder + "meta" + number + ".json");
    setting.protocol = QvDatabaseSettingProtocol_Simulator;
    database.save(folder + "simulator" + number + ".json");
    database.metaSave(folder + "meta_simulator" + number + ".json");
}

} // namespace

int main(int argc, char* argv[])
try {
    if (argc != 3) {
        std::fprintf(stderr, "usage: save_random FOLDER NUMBER\n");
        return 1;
    }
    const std::string folder = std::string(argv[1]) + "/";
    for (int i = 0; i < std::atoi(argv[2]); ++i) {
        Values values(static_cast<unsigned>(i));
        qv::Database database;
        fillDatabase(database, values, folder);
        saveAll(database, folder, std::to_string(i));
    }
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "save_random: %s\n", error.what());
    return 1;
}
