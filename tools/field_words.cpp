#include "field_words.h"

#include <cstddef>
#include <iterator>

#include "catalog_tree.h"

namespace qv::tools {
namespace {

std::string countText(const QvDatabaseCatalogField_t& field)
{
    const std::string counter = field.pCounter == nullptr ? "" : field.pCounter;
    switch (field.count) {
    case QvDatabaseCatalogCount_Members:
        return "list of the record's numbers";
    case QvDatabaseCatalogCount_Fixed:
        return "always " + std::to_string(field.extents[0]);
    case QvDatabaseCatalogCount_Whole:
        return "read as far as it goes, all " + std::to_string(field.extents[0]) + " written";
    case QvDatabaseCatalogCount_Counted:
    case QvDatabaseCatalogCount_Schedule:
        return "counted by " + counter;
    case QvDatabaseCatalogCount_Measured:
        return "length into " + counter + ", longer fails";
    case QvDatabaseCatalogCount_Heap:
        return "any length, into " + counter;
    default:
        return "";
    }
}

} // namespace

std::string documentName(QvDatabaseCatalogDocument_t document)
{
    return document == QvDatabaseCatalogDocument_Initialization ? ".ini" : QvDatabaseCatalog_document(document);
}

std::string extentsText(const QvDatabaseCatalogField_t& field)
{
    std::string text;
    for (std::size_t i = 0; i < field.rank && i < std::size(field.extents); ++i) {
        text += "[" + std::to_string(field.extents[i]) + "]";
    }
    return text;
}

std::string typeText(const QvDatabaseCatalogField_t& field)
{
    switch (field.element) {
    case QvDatabaseCatalogElement_Bool:
        return "bool" + extentsText(field);
    case QvDatabaseCatalogElement_Integer:
        return (field.isSigned ? "int" : "uint") + std::to_string(field.width * 8) + "_t" + extentsText(field);
    case QvDatabaseCatalogElement_Float:
        return "float" + extentsText(field);
    case QvDatabaseCatalogElement_Double:
        return "double" + extentsText(field);
    case QvDatabaseCatalogElement_Text:
        return "char" + extentsText(field) + "[" + std::to_string(field.width) + "]";
    case QvDatabaseCatalogElement_Pointer:
        return (field.pRecord == nullptr ? "void" : shortType(field.pRecord)) + "*";
    default:
        return shortType(field.pRecord) + extentsText(field);
    }
}

std::string roleText(const QvDatabaseCatalogField_t& field, const std::string& other)
{
    const std::string size = std::to_string(field.roleRows) + "×" + std::to_string(field.roleColumns);
    switch (field.role) {
    case QvDatabaseCatalogRole_GainAxis:
        return "gain axis of the lists beside it";
    case QvDatabaseCatalogRole_CurveX:
        return "positions of curve " + other;
    case QvDatabaseCatalogRole_CurveY:
        return "curve over " + other;
    case QvDatabaseCatalogRole_Curve:
        return "curve";
    case QvDatabaseCatalogRole_Matrix:
        return "matrix " + size;
    case QvDatabaseCatalogRole_Map:
        return "map " + size;
    case QvDatabaseCatalogRole_Weights:
        return "weights " + size;
    case QvDatabaseCatalogRole_Window:
        return "window";
    case QvDatabaseCatalogRole_CountOf:
        return "length of " + other;
    case QvDatabaseCatalogRole_Measured:
        return "measured";
    case QvDatabaseCatalogRole_Bits:
        return "bits";
    case QvDatabaseCatalogRole_Handle:
        return "handle";
    default:
        return "";
    }
}

std::vector<std::string> oddities(const QvDatabaseCatalogField_t& field, const QvDatabaseCatalogField_t& member)
{
    std::vector<std::string> words;
    const auto add = [&words](const std::string& text) {
        if (!text.empty()) {
            words.push_back(text);
        }
    };
    add(countText(field));
    const bool isNumber = field.written == QvDatabaseCatalogElement_Integer;
    if (isNumber && field.element == QvDatabaseCatalogElement_Bool) {
        add("number for bool");
    } else if (isNumber && field.element == QvDatabaseCatalogElement_Float) {
        add("bits of the float");
    } else if (isNumber && field.element == QvDatabaseCatalogElement_Integer &&
               field.isSigned != field.isWrittenSigned) {
        add(field.isWrittenSigned ? "saved signed" : "saved unsigned");
    }
    if (field.element < QvDatabaseCatalogElement_Record && extentsText(field) != extentsText(member) &&
        field.rank > 0) {
        add("in rows " + extentsText(field));
    }
    if (field.isTwin) {
        add("older key");
    }
    switch (field.direction) {
    case QvDatabaseCatalogDirection_ReadOnly:
        add("only read");
        break;
    case QvDatabaseCatalogDirection_WriteOnly:
        add("only written");
        break;
    case QvDatabaseCatalogDirection_ReadWhileWriting:
        add("read, saved as null");
        break;
    default:
        break;
    }
    return words;
}

} // namespace qv::tools
