// Paths through the catalog, and values set where they lead: an input is a document's number, a path and, in the next line,
// a value. What is set can be got, nothing beside it changes, what is refused changes nothing, and where a path went
// astray the members that are offered instead can be followed.

#include <algorithm>
#include <cmath>
#include <cstring>

#include <qv_json_c/json_path.h>

#include "support.h"

using namespace qv::fuzz;

namespace {

using Document = QvDatabaseCatalogDocument_t;

QvDatabaseCatalogPlace_t find(Document document, const std::string& path)
{
    QvDatabaseCatalogPlace_t place{};
    place.size = sizeof place;
    const int status = QvDatabaseCatalog_find(document, path.c_str(), &place);
    require(status == (place.stop == QvDatabaseCatalogStop_None ? 0 : 10), "a path is found or says why not", path);
    require(place.reached <= path.size() && (status != 0 || place.reached == path.size()), "a path ends", path);
    return place;
}

/// Members that could stand where the path went astray, or behind it.
void judgeSiblings(Document document, const std::string& path, const QvDatabaseCatalogPlace_t& place)
{
    QvDatabaseCatalogCursor_t cursor{};
    cursor.size = sizeof cursor;
    QvDatabaseCatalogField_t field{};
    field.size = sizeof field;
    const int status = QvDatabaseCatalog_siblings(&place, &cursor);
    require(status == 0 || status == 10, "there are siblings or none", path);
    require(status == 0 || place.stop != QvDatabaseCatalogStop_Member, "a wrong member has others beside it", path);
    std::size_t chosen = numberOf(path) % 16; // one of them will do
    while (status == 0 && QvDatabaseCatalog_next(&cursor, &field) == 0) {
        if (place.stop == QvDatabaseCatalogStop_Member && field.depth == 0 && chosen-- == 0) {
            const std::string other = path.substr(0, place.reached) + field.pKey;
            require(find(document, other).stop == QvDatabaseCatalogStop_None, "what is offered is there", other);
        }
    }
}

/// What a place holds, as text; empty where it is no element.
bool textOf(const QvDatabaseCatalogPlace_t& place, const char* pRecord, std::string& text)
{
    std::size_t length = 0;
    if (QvDatabaseCatalog_text(&place, pRecord, nullptr, 0, &length) != 0) {
        return false;
    }
    const std::unique_ptr<char[]> pText(new char[length + 1]);
    require(QvDatabaseCatalog_text(&place, pRecord, pText.get(), length, nullptr) == 6, "a text needs its end");
    require(QvDatabaseCatalog_text(&place, pRecord, pText.get(), length + 1, nullptr) == 0, "a text has its length");
    text.assign(pText.get(), length);
    return true;
}

void judgeValue(const QvDatabaseCatalogPlace_t& place, const std::string& value)
{
    char* pRecord = Store::instance().record(place.pKey);
    const std::size_t size = Store::instance().sizeOf(place.pKey);
    const bool isOnHeap = place.heapOffset != SIZE_MAX;
    require(isOnHeap || place.offset + place.length <= size, "a place lies in its record", place.pKey);

    if (!isOnHeap && std::strcmp(place.pKey, "DUMP") != 0) {
        std::memset(pRecord, 'Z', size); // what is set to zero beside the place would not be seen among zeros
    }
    const std::string before(pRecord, size);
    const int status = QvDatabaseCatalog_setText(&place, pRecord, value.c_str());
    require(status == 0 || status == 6 || status == 7 || status == 13, "a value is taken or refused", value);
    const std::string behind(pRecord, size);
    std::string expected = before;
    if (status == 0 && !isOnHeap) {
        expected.replace(place.offset, place.length, behind, place.offset, place.length);
    }
    require(behind == expected, "nothing else changes", value);
    std::string text;
    if (status != 0 || !textOf(place, pRecord, text)) {
        return;
    }
    require(QvDatabaseCatalog_setText(&place, pRecord, text.c_str()) == 0, "what is got can be set", text);
    require(std::memcmp(pRecord, behind.data(), behind.size()) == 0, "what is got is what was set", text);
    double number = 0;
    if (QvDatabaseCatalog_number(&place, pRecord, &number) == 0 && std::fabs(number) < 0x1p53) {
        require(QvDatabaseCatalog_setNumber(&place, pRecord, number) == 0, "its number can be set", text);
        require(std::memcmp(pRecord, behind.data(), behind.size()) == 0, "its number is what was set", text);
    }
}

/// The other kind of paths: what leads into a tree is made there once, and the tree stays one that can be written.
void judgeTreePath(const std::string& path)
{
    if (std::count(path.begin(), path.end(), '/') > 500) {
        return; // deeper than a document may be
    }
    const Tree tree = parseJson(R"({"root": {"metadata": {"a": 1}, "list": [1]}, "text": "", "none": null})");
    QvJsonValue_t* pValue = nullptr;
    require(QvJsonPath(tree.get(), path.c_str(), &pValue) == 0 && pValue != nullptr, "a path gives a value", path);
    const std::string once = writeJson(tree.get());
    require(QvJsonPath(tree.get(), path.c_str(), &pValue) == 0, "a path can be followed again", path);
    requireSame(writeJson(tree.get()), once, "a path makes what is missing once");
    require(parseJson(once) != nullptr, "the tree is a document", once);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::string text(reinterpret_cast<const char*>(pData + 1), size - 1);
    const std::string path(text, 0, text.find('\n'));
    const std::string value(text, std::min(path.size() + 1, text.size()));
    const auto document = static_cast<Document>(*pData % QvDatabaseCatalogDocument_Sum);
    const std::string cPath = path.c_str(); // up to a zero byte
    const QvDatabaseCatalogPlace_t place = find(document, cPath);
    judgeSiblings(document, cPath, place);
    judgeTreePath(cPath);
    if (place.pKey != nullptr && std::strcmp(place.pKey, "RAM") != 0) {
        Store::instance().restore();
        const std::string registers = R"({"tuning": {"DUMP": {"registers": [{}, {}]}}})";
        require(std::strcmp(place.pKey, "DUMP") != 0 || Store::instance().parse(Form::Tuning, registers) == 0,
                "registers are made");
        judgeValue(place, value);
    }
    return 0;
}
