#pragma once

// What the fuzz targets share: one database that stays open, and judges.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <qv_database_c/database_catalog.h>
#include <qv_database_c/qv_database.h>
#include <qv_json_c/qv_json.h>

#include "catalog_tree.h"

namespace qv::fuzz {

/// Ends the process, which is how a target tells of a fault, unless isTrue.
void require(bool isTrue, std::string_view what, std::string_view detail = {});

/// Ends the process where two texts differ, and shows where.
void requireSame(std::string_view found, std::string_view expected, std::string_view what);

/// A number that follows from the input alone, to choose what a run does beside reading it.
std::size_t numberOf(std::string_view input);

/// A copy that ends where the input does, so that a sanitizer sees what reads beyond it.
class Exact {
public:
    explicit Exact(std::string_view text);
    char* begin() const { return pText_.get(); }
    char* end() const { return pText_.get() + size_; }

private:
    std::unique_ptr<char[]> pText_;
    std::size_t size_;
};

struct DeleteValue {
    void operator()(QvJsonValue_t* pValue) const { QvJsonValue_delete(&pValue); }
};
using Tree = std::unique_ptr<QvJsonValue_t, DeleteValue>;

/// The tree of a text; empty for one that is no document.
Tree parseJson(std::string_view text);
/// A tree as text; null for the form in which the database writes it.
std::string writeJson(QvJsonValue_t* pTree, QvJsonWriterOpenParam_t* pParam = nullptr);

enum class Form { Tuning, Simulator, Initialization, Image };
constexpr std::size_t kForms = 4;

/// The database of this process. Records are put back from a copy, since to open one takes longer than most runs.
class Store {
public:
    static Store& instance();

    QvDatabaseHandle_t handle() const { return handle_; }
    char* record(std::string_view key) const;
    std::size_t sizeOf(std::string_view key) { return keptOf(key).defaults.size(); }

    /// All records as they were when the database was opened.
    void restore();
    /// Makes all records such that what is written of them comes back as it was: texts of ASCII with an end, floats
    /// that are finite, counts that their lists hold.
    void settle();

    /// Sets one of the counts of a category's lists, or all bytes of one of its fields, chosen by a number.
    void setCount(std::string_view key, std::size_t choice, std::uint64_t number);
    void fillField(std::string_view key, std::size_t choice, char byte);

    /// What QvDatabase_load does with a file's content, and what QvDatabase_save writes into one.
    int parse(Form form, std::string_view content);
    std::string serialize(Form form);

private:
    Store();

    /// Elements one behind the other that settle() looks at.
    struct Run {
        char* pBegin;
        std::size_t width;
        std::size_t number;
        QvDatabaseCatalogElement_t element;
    };
    struct Count {
        char* pCounter;
        std::size_t width;
        std::uint64_t most;
    };
    struct Kept {
        std::string key;
        char* pRecord;
        std::string defaults;
        std::vector<Run> runs;
        std::vector<Count> counts;
    };
    Kept& keptOf(std::string_view key);
    static void findPlaces(Kept& kept, const std::vector<tools::FieldNode>& fields, bool isMemory);

    QvDatabaseHandle_t handle_ = 0;
    std::vector<Kept> records_;
};

/// Releases the documents that failed loads have left since the last call; the library does so on purpose, and a
/// million of them fill any memory.
void releaseLeftTrees();

} // namespace qv::fuzz
