#include "written.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <qv_common_c/common_convert.h>
#include <qv_common_c/common_dqueue.h>
#include <qv_initialization/qv_initialization.h>
#include <qv_json_c/qv_json.h>

#include "bytes.h"

namespace qv::tools {
namespace {

using Field = QvDatabaseCatalogField_t;

template <class T>
std::string fixedOf(T number)
{
    char text[400];
    const auto result = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, 6);
    return {text, result.ptr};
}

/// The number that a reader makes of a text, by way of a double.
template <class T>
bool isReadAs(const std::string& text, T number)
{
    double wide = 0;
    std::from_chars(text.data(), text.data() + text.size(), wide);
    return static_cast<T>(wide) == number;
}

template <class T>
std::string realText(T number)
{
    if (!std::isfinite(number)) {
        return "null";
    }
    std::string fixed = fixedOf(number);
    if (isReadAs(fixed, number)) {
        return fixed;
    }
    std::string shortest = digitsOf(number);
    return isReadAs(shortest, number) ? shortest : digitsOf(static_cast<double>(number));
}

std::int64_t integerOf(bool isSigned, const std::byte* pBytes, std::size_t width)
{
    return QvCommonConvert_integer2Binary_(isSigned, const_cast<std::byte*>(pBytes), width, 0);
}

/// An unsigned integer of 64 bits goes out as the signed one of the same bits, which is what the library's writer does.
std::string integerText(const Field& field, const std::byte* pBytes)
{
    if (field.element == QvDatabaseCatalogElement_Bool) {
        return as<unsigned char>(pBytes) != 0 ? "1" : "0";
    }
    return digitsOf(integerOf(field.isWrittenSigned, pBytes, field.width));
}

/// How many items of a list go out.
std::size_t writtenNumber(const Field& field, const std::byte* pRecord)
{
    if (field.counterWidth == 0) {
        return field.extents[0];
    }
    const auto number = static_cast<std::size_t>(integerOf(false, pRecord + field.counterOffset, field.counterWidth));
    return field.count == QvDatabaseCatalogCount_Heap ? number : std::min(number, field.extents[0]);
}

std::string writtenList(const FieldNode& node, const std::byte* pItems, std::size_t dimension, std::size_t number,
                        const Layout& layout, const std::string& indent)
{
    std::string text = "[";
    for (std::size_t i = 0; i < number; ++i) {
        text += i == 0 ? "" : layout.comma;
        text += writtenItem(node, pItems + i * itemBytes(node.field, dimension), dimension, layout, indent);
    }
    return text + ']';
}

char* duplicate(std::string_view text)
{
    auto* pCopy = static_cast<char*>(std::malloc(text.size() + 1));
    if (pCopy != nullptr) {
        std::memcpy(pCopy, text.data(), text.size());
        pCopy[text.size()] = 0;
    }
    return pCopy;
}

/// The library's writer knows which texts need quotes: it gets a section of the one member.
std::string initializationText(std::string_view text)
{
    QvInitializationSection_t* pSection = nullptr;
    QvInitializationMember_t* pMember = nullptr;
    QvInitializationWriterHandle_t hWriter = 0;
    QvCommonDQueueHandle_t hSections = 0;
    QvCommonBuffer_t buffer{};
    std::string written;
    if (QvInitializationSection_create(&pSection) == 0 && QvInitializationMember_create(&pMember) == 0 &&
        QvInitializationWriter_open(&hWriter) == 0 && QvCommonDQueue_open(nullptr, &hSections) == 0) {
        pSection->pHeader = duplicate("s");
        pMember->pKey = duplicate("k");
        pMember->pValue = duplicate(text);
        void* pElement = pMember;
        if (QvCommonDQueue_pushBack(pSection->hMember, &pElement) == 0) {
            pMember = nullptr; // the section's now
        }
        pElement = pSection;
        QvCommonDQueue_pushBack(hSections, &pElement);
        if (QvInitializationWriter_serialize(hWriter, hSections, &buffer) == 0) {
            const std::string_view document{buffer.pBegin, buffer.size};
            const std::size_t begin = document.find('=') + 1;
            written = document.substr(begin, document.find('\n', begin) - begin);
            written.erase(0, written.find_first_not_of(' '));
        }
    }
    QvCommonBuffer_clear(&buffer);
    QvCommonDQueue_close(&hSections);
    QvInitializationWriter_close(&hWriter);
    QvInitializationMember_delete(&pMember);
    QvInitializationSection_delete(&pSection);
    return written;
}

} // namespace

std::string writtenText(std::string_view text)
{
    QvJsonValue_t* pValue = nullptr;
    QvJsonWriterHandle_t hWriter = 0;
    char* pWritten = nullptr;
    std::string written = "\"\"";
    if (QvJsonValue_create(QvJsonValueType_Array, &pValue) == 0 && QvJsonWriter_open(nullptr, &hWriter) == 0 &&
        QvJsonValue_addStringToArray(pValue, std::string(text).c_str()) == 0 &&
        QvJsonWriter_stringify(hWriter, pValue, &pWritten) == 0) {
        written = pWritten;
        written = written.substr(1, written.rfind(']') - 1);
    }
    std::free(pWritten);
    QvJsonWriter_close(&hWriter);
    QvJsonValue_delete(&pValue);
    return written;
}

std::string writtenElement(const Field& field, const std::byte* pBytes)
{
    switch (field.written) {
    case QvDatabaseCatalogElement_Bool:
        return as<unsigned char>(pBytes) != 0 ? "true" : "false";
    case QvDatabaseCatalogElement_Integer:
        return integerText(field, pBytes);
    case QvDatabaseCatalogElement_Float:
        return realText(as<float>(pBytes));
    case QvDatabaseCatalogElement_Double:
        return realText(as<double>(pBytes));
    case QvDatabaseCatalogElement_Text:
        return writtenText(charactersOf(field, pBytes));
    default:
        return "null";
    }
}

std::size_t itemBytes(const Field& field, std::size_t dimension)
{
    std::size_t bytes = field.width;
    for (std::size_t i = dimension + 1; i < field.rank; ++i) {
        bytes *= field.extents[i];
    }
    return bytes;
}

std::string writtenObject(const FieldNode& node, const std::byte* pRecord, const Layout& layout,
                          const std::string& indent)
{
    const std::string inner = indent + layout.unit;
    std::vector<std::string> members;
    for (const FieldNode& member : node.fields) {
        if (!member.field.isTwin) {
            members.push_back(writtenText(member.field.pKey) + layout.colon +
                              writtenMember(member, pRecord, layout, inner));
        }
    }
    return objectOf(members, layout, indent);
}

std::string writtenItem(const FieldNode& node, const std::byte* pItem, std::size_t dimension, const Layout& layout,
                        const std::string& indent)
{
    if (dimension + 1 < node.field.rank) {
        return writtenList(node, pItem, dimension + 1, node.field.extents[dimension + 1], layout, indent);
    }
    return node.fields.empty() ? writtenElement(node.field, pItem) : writtenObject(node, pItem, layout, indent);
}

std::string objectOf(const std::vector<std::string>& members, const Layout& layout, const std::string& indent)
{
    if (layout.newline.empty() || members.empty()) {
        return '{' + joined(members, layout.comma) + '}';
    }
    const std::string start = layout.newline + indent + layout.unit;
    return '{' + start + joined(members, ',' + start) + layout.newline + indent + '}';
}

std::string joined(const std::vector<std::string>& values, const std::string& comma)
{
    std::string text;
    for (const std::string& value : values) {
        text += (&value == values.data() ? "" : comma) + value;
    }
    return text;
}

std::string writtenMember(const FieldNode& node, const std::byte* pRecord, const Layout& layout,
                          const std::string& indent)
{
    const Field& field = node.field;
    const std::byte* pBytes = field.pName == nullptr ? pRecord : pRecord + field.offset;
    if (field.count == QvDatabaseCatalogCount_Members) {
        std::string text;
        for (const FieldNode& member : node.fields) {
            text += (text.empty() ? "" : layout.comma) + writtenElement(member.field, pBytes + member.field.offset);
        }
        return '[' + text + ']';
    }
    if (field.count == QvDatabaseCatalogCount_Heap) {
        pBytes = as<const std::byte*>(pBytes);
    }
    if (field.rank > 0) {
        const std::size_t number = pBytes == nullptr ? 0 : writtenNumber(field, pRecord);
        // Objects in a list stand one level deeper than other values would.
        return writtenList(node, pBytes, 0, number, layout, indent + layout.unit);
    }
    return node.fields.empty() ? writtenElement(field, pBytes) : writtenObject(node, pBytes, layout, indent);
}

std::string writtenInitialization(const Field& field, const std::byte* pBytes)
{
    switch (field.written) {
    case QvDatabaseCatalogElement_Float:
        return digitsOf(as<float>(pBytes)); // read with its fraction, though the library writes none
    case QvDatabaseCatalogElement_Text:
        return initializationText(charactersOf(field, pBytes));
    default:
        return writtenElement(field, pBytes);
    }
}

} // namespace qv::tools
