#include "support.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <qv_common_c/common_buffer.h>
#include <qv_common_c/common_time.h>
#include <qv_common_c/common_tracer.h>
#include <qv_database_c/database_binary.h>
#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_catalog.h>
#include <qv_database_c/database_dump.h>
#include <qv_database_c/database_initialization.h>
#include <qv_database_c/database_setting.h>
#include <qv_database_c/database_text.h>

namespace qv::fuzz {
namespace {

using tools::FieldNode;

/// Traces are made, which is code to be tested too, and dropped.
void openTracer()
{
    QvCommonTracerOpenParam_t param{};
    param.level = QvCommonTracerLevel_Warning;
    param.pWrite = [](void*, QvCommonTracerLevel_t, const char* pText, size_t length) {
        require(std::strlen(pText) == length, "a trace has the length that it says");
        return 0;
    };
    require(QvCommonTracer_open(&param, &hTracer) == 0, "the tracer opens");
}

/// How many elements stand one behind the other, and records in a list.
std::size_t elementsOf(const QvDatabaseCatalogField_t& field)
{
    return field.extents[0] * field.extents[1] * field.extents[2];
}

bool isOneRecord(const QvDatabaseCatalogField_t& field)
{
    return field.count == QvDatabaseCatalogCount_One || field.count == QvDatabaseCatalogCount_Members;
}

/// Calls visit(field, where its first element stands) for all fields of a record and those within.
template <class Visit>
void visitFields(const std::vector<FieldNode>& nodes, char* pRecord, const Visit& visit)
{
    for (const FieldNode& node : nodes) {
        char* pBegin = pRecord + node.field.offset;
        visit(node.field, pRecord, pBegin);
        const bool isList =
            node.field.count != QvDatabaseCatalogCount_Heap && node.field.element == QvDatabaseCatalogElement_Record;
        const std::size_t number = isOneRecord(node.field) ? 1 : elementsOf(node.field);
        for (std::size_t i = 0; isList && i < number; ++i) {
            visitFields(node.fields, pBegin + i * node.field.width, visit);
        }
    }
}

template <class T>
void clearUnlessFinite(char* pData)
{
    T value{};
    std::memcpy(&value, pData, sizeof value);
    if (!std::isfinite(value)) {
        std::memset(pData, 0, sizeof value);
    }
}

void settleElement(QvDatabaseCatalogElement_t element, char* pData, std::size_t width)
{
    if (element == QvDatabaseCatalogElement_Float) {
        clearUnlessFinite<float>(pData);
    } else if (element == QvDatabaseCatalogElement_Double) {
        clearUnlessFinite<double>(pData);
    } else if (element == QvDatabaseCatalogElement_Text) {
        std::replace_if(
            pData, pData + width, [](char c) { return c < 0; }, '?');
        pData[width - 1] = 0;
    }
}

} // namespace

void require(bool isTrue, std::string_view what, std::string_view detail)
{
    if (!isTrue) {
        std::fprintf(stderr, "broken: %.*s\n%.*s\n", static_cast<int>(what.size()), what.data(),
                     static_cast<int>(detail.size()), detail.data());
        std::abort();
    }
}

void requireSame(std::string_view found, std::string_view expected, std::string_view what)
{
    if (found != expected) {
        const auto at = static_cast<std::size_t>(
            std::mismatch(found.begin(), found.end(), expected.begin(), expected.end()).first - found.begin());
        const std::size_t begin = at < 60 ? 0 : at - 60;
        require(false, what,
                std::string(found.substr(begin, 120)) + "\n-- instead of --\n" +
                    std::string(expected.substr(begin, 120)));
    }
}

std::size_t numberOf(std::string_view input)
{
    return std::hash<std::string_view>{}(input);
}

Exact::Exact(std::string_view text) : pText_(new char[text.size()]), size_(text.size())
{
    text.copy(pText_.get(), size_);
}

Tree parseJson(std::string_view text)
{
    static QvJsonReaderHandle_t hReader = 0;
    if (hReader == 0) {
        require(QvJsonReader_open(&hReader) == 0, "the reader opens");
    }
    const Exact exact(text);
    QvJsonValue_t* pTree = nullptr;
    const int status = QvJsonReader_parse(hReader, exact.begin(), exact.end(), &pTree);
    require(status == 0 || status == 7, "a text is a document or not");
    require((status == 0) == (pTree != nullptr), "a document has a tree");
    return Tree(pTree);
}

std::string writeJson(QvJsonValue_t* pTree, QvJsonWriterOpenParam_t* pParam)
{
    QvJsonWriterHandle_t hWriter = 0;
    char* pText = nullptr;
    require(QvJsonWriter_open(pParam, &hWriter) == 0, "the writer opens");
    require(QvJsonWriter_stringify(hWriter, pTree, &pText) == 0, "what was read can be written");
    require(QvJsonWriter_close(&hWriter) == 0, "the writer closes");
    std::string text = pText;
    std::free(pText);
    return text;
}

Store& Store::instance()
{
    static Store store;
    return store;
}

Store::Store()
{
    openTracer();
    QvDatabaseOpenParam_t param{};
    require(QvDatabase_open(&param, &handle_) == 0, "a database opens");
    for (std::size_t i = 0; const QvDatabaseCategory_t* pCategory = QvDatabase_category(i); ++i) {
        Kept& kept = records_.emplace_back();
        kept.key = pCategory->pKey;
        kept.pRecord = record(kept.key);
        kept.defaults.assign(kept.pRecord, pCategory->size);
    }
    for (const auto document :
         {QvDatabaseCatalogDocument_Memory, QvDatabaseCatalogDocument_Tuning, QvDatabaseCatalogDocument_Simulator,
          QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Meta}) {
        for (const QvDatabaseCatalogCategory_t& category : tools::categoriesOf(document)) {
            findPlaces(keptOf(category.pKey), tools::fieldsOf(document, category),
                       document == QvDatabaseCatalogDocument_Memory);
        }
    }
}

void Store::findPlaces(Kept& kept, const std::vector<FieldNode>& fields, bool isMemory)
{
    visitFields(fields, kept.pRecord,
                [&kept, isMemory](const QvDatabaseCatalogField_t& field, char* pRecord, char* pBegin) {
                    if (isMemory && field.element != QvDatabaseCatalogElement_Record) {
                        kept.runs.push_back({pBegin, field.width, elementsOf(field), field.element});
                    }
                    if (field.counterWidth != 0 && field.count != QvDatabaseCatalogCount_Heap) {
                        kept.counts.push_back({pRecord + field.counterOffset, field.counterWidth, field.extents[0]});
                    }
                });
}

char* Store::record(std::string_view key) const
{
    void* pData = nullptr;
    require(QvDatabase_query(handle_, std::string(key).c_str(), &pData) == 0, "a category has a record");
    return static_cast<char*>(pData);
}

void Store::restore()
{
    std::free(reinterpret_cast<QvDatabaseDump_t*>(record("DUMP"))->pRegisters); // the application's to release
    for (const Kept& kept : records_) {
        std::memcpy(kept.pRecord, kept.defaults.data(), kept.defaults.size());
    }
    releaseLeftTrees();
}

void Store::settle()
{
    for (const Kept& kept : records_) {
        if (std::memcmp(kept.pRecord, kept.defaults.data(), kept.defaults.size()) == 0) {
            continue;
        }
        for (const Run& run : kept.runs) {
            if (run.element == QvDatabaseCatalogElement_Integer || run.element == QvDatabaseCatalogElement_Bool) {
                continue;
            }
            for (char* pData = run.pBegin; pData != run.pBegin + run.number * run.width; pData += run.width) {
                settleElement(run.element, pData, run.width);
            }
        }
        for (const Count& count : kept.counts) {
            std::uint64_t number = 0;
            std::memcpy(&number, count.pCounter, count.width);
            number = std::min(number, count.most);
            std::memcpy(count.pCounter, &number, count.width);
        }
    }
    // This list is read as far as the one before it goes.
    auto& sensor = reinterpret_cast<QvDatabaseCalibration_t*>(record("CLB"))->sensor;
    sensor.bnrNumber = std::min(sensor.bnrNumber, sensor.blsNumber);
}

Store::Kept& Store::keptOf(std::string_view key)
{
    const auto found = std::ranges::find(records_, key, &Kept::key);
    require(found != records_.end(), "a category is known", key);
    return *found;
}

void Store::setCount(std::string_view key, std::size_t choice, std::uint64_t number)
{
    const std::vector<Count>& counts = keptOf(key).counts;
    if (!counts.empty()) {
        const Count& count = counts[choice % counts.size()];
        std::memcpy(count.pCounter, &number, count.width);
    }
}

void Store::fillField(std::string_view key, std::size_t choice, char byte)
{
    const std::vector<Run>& runs = keptOf(key).runs;
    if (!runs.empty()) {
        const Run& run = runs[choice % runs.size()];
        std::memset(run.pBegin, byte, run.number * run.width);
    }
}

int Store::parse(Form form, std::string_view content)
{
    const Exact exact(content);
    QvCommonBuffer_t buffer{};
    buffer.pBegin = exact.begin();
    buffer.size = content.size();
    switch (form) {
    case Form::Initialization:
        return QvDatabaseInitialization_parse(handle_, &buffer);
    case Form::Image:
        return QvDatabaseBinary_parse(handle_, &buffer);
    default:
        return QvDatabaseText_parse(handle_, &buffer);
    }
}

std::string Store::serialize(Form form)
{
    QvCommonBuffer_t buffer{};
    int status = 0;
    if (form == Form::Initialization) {
        status = QvDatabaseInitialization_serialize(handle_, &buffer);
    } else if (form == Form::Image) {
        std::size_t total = 0;
        require(QvDatabaseBinary_serialize(handle_, nullptr, &total) == 0, "an image has a size");
        buffer = {static_cast<char*>(std::malloc(total)), 0, total, nullptr, true};
        status = QvDatabaseBinary_serialize(handle_, &buffer, nullptr);
    } else {
        reinterpret_cast<QvDatabaseSetting_t*>(record("ST"))->protocol =
            form == Form::Simulator ? QvDatabaseSettingProtocol_Simulator : QvDatabaseSettingProtocol_Standard;
        status = QvDatabaseText_serialize(handle_, &buffer);
    }
    require(status == 0, "any records can be written");
    std::string content(buffer.pBegin, buffer.size);
    QvCommonBuffer_clear(&buffer);
    return content;
}

} // namespace qv::fuzz

// ------------------------------------------------------------------------------------------------ instead of the real

extern "C" {

decltype(QvJsonReader_parse) __real_QvJsonReader_parse, __wrap_QvJsonReader_parse;
decltype(QvJsonReader_load) __real_QvJsonReader_load, __wrap_QvJsonReader_load;
decltype(QvJsonValue_delete) __real_QvJsonValue_delete, __wrap_QvJsonValue_delete;
decltype(QvCommonTime_timestamp) __wrap_QvCommonTime_timestamp;

static std::vector<QvJsonValue_t*> trees;

int __wrap_QvJsonReader_parse(QvJsonReaderHandle_t handle, const char* pBegin, const char* pEnd,
                              QvJsonValue_t** ppValue)
{
    const int status = __real_QvJsonReader_parse(handle, pBegin, pEnd, ppValue);
    if (status == 0) {
        trees.push_back(*ppValue);
    }
    return status;
}

int __wrap_QvJsonReader_load(QvJsonReaderHandle_t handle, const char* pFilename, QvJsonValue_t** ppValue)
{
    const int status = __real_QvJsonReader_load(handle, pFilename, ppValue);
    if (status == 0) {
        trees.push_back(*ppValue);
    }
    return status;
}

int __wrap_QvJsonValue_delete(QvJsonValue_t** ppValue)
{
    std::erase(trees, *ppValue);
    return __real_QvJsonValue_delete(ppValue);
}

/// Two saves of the same records are the same at any time.
char* __wrap_QvCommonTime_timestamp(char* pText, size_t size)
{
    std::snprintf(pText, size, "%s", "2000-01-01T00:00:00");
    return pText;
}
}

void qv::fuzz::releaseLeftTrees()
{
    for (QvJsonValue_t* pTree : trees) {
        __real_QvJsonValue_delete(&pTree);
    }
    trees.clear();
}
