// make_seeds DOCUMENTS FOLDER: what fuzz targets begin with beside fuzz/corpus. The documents of a real sensor, cut to
// pieces of a category or section each, since a short input is worth more than a long one; and dictionaries of all keys,
// classes and named values that the catalog knows.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>

#include "catalog_tree.h"
#include "support.h"

using namespace qv::fuzz;
namespace fs = std::filesystem;
namespace tools = qv::tools;

namespace {

void write(const fs::path& file, std::string_view content)
{
    fs::create_directories(file.parent_path());
    require(static_cast<bool>(std::ofstream(file, std::ios::binary) << content), "a file can be written",
            file.string());
}

std::string read(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    require(static_cast<bool>(stream), "a file can be read", file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A value's text with lists of two items at most: what a list of a hundred does, a list of two does too.
std::string shortText(QvJsonValue_t& value)
{
    const bool isList = value.type == QvJsonValueType_Array;
    if (!isList && value.type != QvJsonValueType_Object) {
        const std::string text = writeJson(&value);
        return text.substr(0, text.size() - 1); // without its line end
    }
    std::string text;
    for (std::size_t i = 0;
         i < (isList ? std::min<std::size_t>(2, value.holder.pArray->number) : value.holder.pObject->number); ++i) {
        text += i == 0 ? "" : ", ";
        text += isList ? "" : "\"" + std::string(value.holder.pObject->pPairs[i].pKey) + "\": ";
        text += shortText(isList ? value.holder.pArray->pValues[i] : *value.holder.pObject->pPairs[i].pValue);
    }
    return isList ? "[" + text + "]" : "{" + text + "}";
}

/// A document for each member of an object or item of a list, with the same around it as in the whole.
void cut(QvJsonValue_t* pValue, const std::string& before, const std::string& behind, const fs::path& folder,
         const std::string& name)
{
    const bool isList = pValue->type == QvJsonValueType_Array;
    const std::size_t number = isList ? pValue->holder.pArray->number : pValue->holder.pObject->number;
    for (std::size_t i = 0; i < number; ++i) {
        QvJsonValue_t* pItem = isList ? &pValue->holder.pArray->pValues[i] : pValue->holder.pObject->pPairs[i].pValue;
        const std::string key = isList ? "" : "\"" + std::string(pValue->holder.pObject->pPairs[i].pKey) + "\": ";
        const fs::path file = folder / (name + std::to_string(i));
        write(file, before + key + shortText(*pItem) + behind);
    }
}

void cutDocuments(const std::string& tuning, const std::string& simulator, const fs::path& folder)
{
    const Tree one = parseJson(tuning);
    cut(QvJsonValue_member(one.get(), "tuning"), R"({"tuning": {)", "}}", folder, "tuning");
    cut(QvJsonValue_member(one.get(), "sensor"), R"({"header": {"creator": "x"}, "sensor": {)", "}}", folder, "sensor");
    const Tree other = parseJson(simulator);
    QvJsonValue_t* pRoot = QvJsonValue_member(other.get(), "root");
    cut(QvJsonValue_member(QvJsonValue_item(pRoot, QvJsonValue_size(pRoot) - 1), "driver"), R"({"root": [{"driver": [)",
        "]}]}", folder, "driver");
    cut(pRoot, R"({"root": [)", "]}", folder, "root");
}

void cutSections(const std::string& text, const fs::path& folder)
{
    for (std::size_t begin = text.find('['); begin != std::string::npos;) {
        const std::size_t end = text.find("\n[", begin);
        write(folder / text.substr(begin + 1, text.find(']', begin) - begin - 1), text.substr(begin, end - begin));
        begin = end == std::string::npos ? end : end + 1;
    }
}

void collect(const std::vector<tools::FieldNode>& nodes, std::set<std::string>& words)
{
    for (const tools::FieldNode& node : nodes) {
        words.insert(node.field.pKey);
        for (const QvDatabaseCatalogValue_t& value : tools::valuesOf(node.field)) {
            words.insert(value.pShort);
        }
        collect(node.fields, words);
    }
}

/// The words of some documents, each in quotes where isQuoted.
void writeDictionary(const fs::path& file, const std::vector<int>& documents, bool isQuoted)
{
    std::set<std::string> words;
    for (const int document : documents) {
        const auto form = static_cast<QvDatabaseCatalogDocument_t>(document);
        for (const QvDatabaseCatalogCategory_t& category : tools::categoriesOf(form)) {
            words.insert(category.pKey);
            words.insert(category.pClass == nullptr ? "" : category.pClass);
            collect(tools::fieldsOf(form, category), words);
        }
    }
    words.erase("");
    std::string text;
    for (const std::string& word : words) {
        text += isQuoted ? "\"\\\"" + word + "\\\"\"\n" : "\"" + word + "\"\n";
    }
    write(file, text);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_seeds DOCUMENTS FOLDER\n");
        return 2;
    }
    const fs::path documents = argv[1];
    const fs::path folder = argv[2];
    Store& store = Store::instance();
    const std::string tuning = read(documents / "imx477.json");
    const std::string sections = read(documents / "imx477.ini");
    require(store.parse(Form::Tuning, tuning) == 0 && store.parse(Form::Initialization, sections) == 0, "they load");
    fs::create_directories(folder / "metadata");
    for (const Form form : {Form::Simulator, Form::Tuning}) {
        const std::string text = store.serialize(form);
        if (form == Form::Simulator) {
            cutDocuments(tuning, text, folder / "documents");
        }
        const fs::path meta = folder / "metadata" / (form == Form::Simulator ? "simulator" : "plain");
        require(QvDatabase_metaSave(store.handle(), meta.c_str()) == 0, "metadata can be saved");
        write(meta, shortText(*parseJson(read(meta))));
    }
    cutSections(sections, folder / "initialization");
    const std::string calibration = read(documents / "imx477_calibration.txt");
    write(folder / "calibration" / "matrix", calibration.substr(0, 2000));
    write(folder / "calibration" / "whole", calibration);

    writeDictionary(folder / "documents.dict",
                    {QvDatabaseCatalogDocument_Tuning, QvDatabaseCatalogDocument_Simulator,
                     QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Version},
                    true);
    writeDictionary(folder / "metadata.dict", {QvDatabaseCatalogDocument_Meta, QvDatabaseCatalogDocument_Simulator},
                    true);
    writeDictionary(folder / "initialization.dict", {QvDatabaseCatalogDocument_Initialization}, false);
    writeDictionary(folder / "catalog.dict", {0, 1, 2, 3, 4, 5, 6, 7}, false);
    return 0;
}
