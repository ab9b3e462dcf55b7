#include "form_listing.h"

#include <cstdio>

#include "database_forms.h"

namespace qv::test {
namespace {

using namespace qv::database;

std::string elementText(const Field& field, Element element, bool isSigned)
{
    const std::string width = std::to_string(field.width);
    switch (element) {
    case Element::Bool:
        return "bool";
    case Element::Integer:
        return std::string(isSigned ? "int" : "uint").append(std::to_string(field.width * 8));
    case Element::Float:
        return "float";
    case Element::Double:
        return "double";
    case Element::Text:
        return std::string("text(").append(width).append(")");
    case Element::Record:
        return std::string("record(").append(width).append(")");
    }
    return "?";
}

std::string extentText(const Field& field)
{
    std::string text;
    for (int i = 0; i < field.rank; ++i) {
        text.append("[").append(std::to_string(field.extents[i])).append("]");
    }
    return text;
}

std::string counterText(const char* pWord, Counter counter)
{
    char text[64];
    std::snprintf(text, sizeof text, " %s uint%d@%u", pWord, counter.width * 8, counter.offset);
    return text;
}

std::string noteText(const Field& field)
{
    std::string text;
    switch (field.count) {
    case Count::One:
        break;
    case Count::Members:
        text += " list-of-members";
        break;
    case Count::Fixed:
        text += field.rank == 0 ? " first-item" : " fixed";
        break;
    case Count::Whole:
        text += " written-whole";
        break;
    case Count::Counted:
        text += counterText("counted-by", field.counter);
        break;
    case Count::Measured:
        text += counterText("measured-into", field.counter);
        break;
    case Count::Schedule:
        text += counterText("schedule", field.counter);
        break;
    case Count::Heap:
        text += counterText("heap", field.counter);
        break;
    }
    if (field.bound.width != 0) {
        text += counterText("read-up-to", field.bound);
    }
    if (field.columns != 0) {
        text.append(" rows-of-").append(std::to_string(field.columns));
    }
    if (field.isTwin) {
        text += " twin";
    } else if (field.direction == Direction::ReadOnly) {
        text += " read-only";
    } else if (field.direction == Direction::WriteOnly) {
        text += " write-only";
    } else if (field.direction == Direction::ReadWhileWriting) {
        text += " read-while-writing";
    }
    return text;
}

void listTable(const Table& table, int depth, std::string& out)
{
    for (const Field& field : table.rows) {
        char line[256];
        const std::string key = std::string(static_cast<std::size_t>(depth) * 2, ' ') + field.key;
        const Element written = field.count == Count::Members ? Element::Record : field.written;
        std::snprintf(line, sizeof line, "%-36s %-16s %-12s @%-6u %6zu%s", key.c_str(),
                      (elementText(field, written, field.isWrittenSigned) + extentText(field)).c_str(),
                      elementText(field, field.element, field.isSigned).c_str(), field.offset, field.size(),
                      noteText(field).c_str());
        out += line;
        out += '\n';
        if (field.table != nullptr) {
            listTable(*field.table, depth + 1, out);
        }
    }
}

} // namespace

std::string listForms()
{
    std::string out = "# member, its element in the document, the C member's element, offset, bytes, notes\n";
    for (const Form& form : forms()) {
        char title[160];
        std::snprintf(title, sizeof title, "\n[%s %s] %s, %zu bytes\n", form.document, form.key, form.table->name,
                      form.table->size);
        out += title;
        listTable(*form.table, 1, out);
    }
    return out;
}

} // namespace qv::test
