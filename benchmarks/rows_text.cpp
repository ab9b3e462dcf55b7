// JSON text: from a file, from memory, to a tree, and back to text.
#include "rows.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/rapidjson.h>
#include <rapidjson/stringbuffer.h>
#include <simdjson.h>

#include <qv_database_c/database_text.h>

namespace qv::benchmark {
namespace {

using Nlohmann = nlohmann::json; // the ordered one, which keeps members as we do, is slower

/// RapidJSON's writer with the numbers that we write: six digits behind the point, correctly rounded, by the
/// standard library's to_chars. Its own SetMaxDecimalPlaces cuts digits off and leaves trailing zeros out.
class SixDecimals : public rapidjson::PrettyWriter<rapidjson::StringBuffer> {
public:
    explicit SixDecimals(rapidjson::StringBuffer& buffer) : PrettyWriter(buffer)
    {
        SetIndent(' ', 2);
        SetFormatOptions(rapidjson::kFormatSingleLineArray);
    }

    bool Double(double number)
    {
        char text[512];
        const auto result = std::to_chars(std::begin(text), std::end(text), number, std::chars_format::fixed, 6);
        return RawValue(text, static_cast<std::size_t>(result.ptr - text), rapidjson::kNumberType);
    }
};

/// The peers build their trees from ours, which is the document's content without a parser: constant keys stay where
/// they are, as they would in a program, texts are copied and arrays get their room at once.
rapidjson::Value buildRapidjson(const QvJsonValue_t& value, rapidjson::MemoryPoolAllocator<>& allocator)
{
    switch (value.type) {
    case QvJsonValueType_Array: {
        const QvJsonValueArray_t& array = *value.holder.pArray;
        rapidjson::Value result(rapidjson::kArrayType);
        result.Reserve(static_cast<rapidjson::SizeType>(array.number), allocator);
        for (std::size_t i = 0; i < array.number; ++i) {
            result.PushBack(buildRapidjson(array.pValues[i], allocator), allocator);
        }
        return result;
    }
    case QvJsonValueType_Object: {
        const QvJsonValueObject_t& object = *value.holder.pObject;
        rapidjson::Value result(rapidjson::kObjectType);
        for (std::size_t i = 0; i < object.number; ++i) {
            const QvJsonValuePair_t& pair = object.pPairs[i];
            result.AddMember(rapidjson::StringRef(pair.pKey), buildRapidjson(*pair.pValue, allocator), allocator);
        }
        return result;
    }
    case QvJsonValueType_Boolean:
        return rapidjson::Value(value.holder._bool);
    case QvJsonValueType_Float:
        return rapidjson::Value(value.holder._float);
    case QvJsonValueType_Integer:
        return rapidjson::Value(static_cast<std::int64_t>(value.holder.integer));
    case QvJsonValueType_String:
        return {value.holder.pChar, allocator};
    case QvJsonValueType_Null:
        break;
    }
    return {};
}

Nlohmann buildNlohmann(const QvJsonValue_t& value)
{
    switch (value.type) {
    case QvJsonValueType_Array: {
        const QvJsonValueArray_t& array = *value.holder.pArray;
        Nlohmann result = Nlohmann::array();
        auto& items = result.get_ref<Nlohmann::array_t&>();
        items.reserve(array.number);
        for (std::size_t i = 0; i < array.number; ++i) {
            items.push_back(buildNlohmann(array.pValues[i]));
        }
        return result;
    }
    case QvJsonValueType_Object: {
        const QvJsonValueObject_t& object = *value.holder.pObject;
        Nlohmann result = Nlohmann::object();
        for (std::size_t i = 0; i < object.number; ++i) {
            result.emplace(object.pPairs[i].pKey, buildNlohmann(*object.pPairs[i].pValue));
        }
        return result;
    }
    case QvJsonValueType_Boolean:
        return value.holder._bool;
    case QvJsonValueType_Float:
        return value.holder._float;
    case QvJsonValueType_Integer:
        return value.holder.integer;
    case QvJsonValueType_String:
        return value.holder.pChar;
    case QvJsonValueType_Null:
        break;
    }
    return nullptr;
}

rapidjson::StringBuffer saveRapidjson(const QvJsonValue_t& source)
{
    rapidjson::MemoryPoolAllocator<> allocator;
    const rapidjson::Value tree = buildRapidjson(source, allocator);
    rapidjson::StringBuffer buffer;
    SixDecimals writer(buffer);
    check(tree.Accept(writer), "RapidJSON");
    return buffer;
}

std::string saveOurs(const Database& database)
{
    QvCommonBuffer_t buffer{};
    check(QvDatabaseText_serialize(database.handle(), &buffer) == 0, "save");
    std::string text(buffer.pBegin, buffer.size);
    QvCommonBuffer_clear(&buffer);
    return text;
}

std::string withoutBlanks(std::string text)
{
    std::erase_if(text, [](char letter) { return letter == ' ' || letter == '\n'; });
    return text;
}

void readRows(Report& report, const Document& document)
{
    Database database;
    simdjson::dom::parser parser;
    const simdjson::padded_string padded(document.text);

    report.add("load of a `.json` file", "simdjson: read and DOM parse", 1.5, document.name,
               compare([&] { database.load(document.json); },
                       [&] {
                           simdjson::dom::element tree;
                           check(parser.load(document.json).get(tree) == simdjson::SUCCESS, "simdjson");
                           keep(tree);
                       }));

    const Reader reader;
    report.add("text to tree and its release", "simdjson: DOM parse", 1.2, document.name,
               compare(
                   [&] {
                       QvJsonValue_t* pTree = reader.parse(document.text);
                       keep(pTree);
                       QvJsonValue_delete(&pTree);
                   },
                   [&] {
                       simdjson::dom::element tree;
                       check(parser.parse(padded).get(tree) == simdjson::SUCCESS, "simdjson");
                       keep(tree);
                   }));

    std::string text = document.text;
    QvCommonBuffer_t buffer{};
    buffer.pBegin = text.data();
    buffer.size = text.size();
    report.add("load from memory", "nlohmann: parse", 0.15, document.name,
               compare([&] { check(QvDatabaseText_parse(database.handle(), &buffer) == 0, "parse"); },
                       [&] {
                           const auto tree = Nlohmann::parse(document.text);
                           keep(tree);
                       }));
}

void writeRows(Report& report, const Document& document)
{
    const Database database(document.json);
    const Work save = [&] {
        QvCommonBuffer_t buffer{};
        check(QvDatabaseText_serialize(database.handle(), &buffer) == 0, "save");
        keep(buffer);
        QvCommonBuffer_clear(&buffer);
    };

    const Reader reader;
    const std::string text = saveOurs(database);
    QvJsonValue_t* pSource = reader.parse(text);
    check(withoutBlanks(saveRapidjson(*pSource).GetString()) == withoutBlanks(text), "comparing RapidJSON's text");
    check(buildNlohmann(*pSource) == Nlohmann::parse(text), "comparing nlohmann's tree");

    report.add("save to text in memory", "RapidJSON: build and PrettyWriter", 0.6, document.name, compare(save, [&] {
                   const rapidjson::StringBuffer buffer = saveRapidjson(*pSource);
                   keep(buffer);
               }));
    report.add("save to text in memory", "nlohmann: build and dump", 0.2, document.name, compare(save, [&] {
                   const std::string dumped = buildNlohmann(*pSource).dump(2);
                   keep(dumped);
               }));
    QvJsonValue_delete(&pSource);
}

} // namespace

void textRows(Report& report, const Document& document)
{
    readRows(report, document);
    writeRows(report, document);
}

std::string peers()
{
    const auto number = [](int major, int minor, int patch) {
        return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
    };
    return "simdjson " +
           number(simdjson::SIMDJSON_VERSION_MAJOR, simdjson::SIMDJSON_VERSION_MINOR,
                  simdjson::SIMDJSON_VERSION_REVISION) +
           " on " + simdjson::get_active_implementation()->name() + ", RapidJSON " RAPIDJSON_VERSION_STRING +
           ", nlohmann " +
           number(NLOHMANN_JSON_VERSION_MAJOR, NLOHMANN_JSON_VERSION_MINOR, NLOHMANN_JSON_VERSION_PATCH);
}

} // namespace qv::benchmark
