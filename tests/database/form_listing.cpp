#include "form_listing.h"

#include <cstdio>

#include "database_forms.h"

namespace qv::test {
namespace {

using namespace qv::database;

std::string elementText(const Field& field, Element element, bool isSigned)
{
    switch (element) {
    case Element::Bool:
        return "bool";
    case Element::Integer:
        return (isSigned ? "int" : "uint") + std::to_string(field.width * 8);
    case Element::Float:
        return "float";
    case Element::Double:
        return "double";
    default:
        return (element == Element::Text ? "text(" : "record(") + std::to_string(field.width) + ")";
    }
}

std::string noteText(const Field& field)
{
    constexpr const char* kCounts[] = {
        "", " list-of-members", " fixed", " written-whole", " counted-by", " measured-into", " schedule", " heap"};
    constexpr const char* kDirections[] = {"", " read-only", " write-only", " read-while-writing"};
    const auto counterText = [](Counter counter) {
        return " uint" + std::to_string(counter.width * 8) + "@" + std::to_string(counter.offset);
    };
    const bool isFirstItem = field.count == Count::Fixed && field.rank == 0;
    std::string text = isFirstItem ? " first-item" : kCounts[static_cast<std::size_t>(field.count)];
    if (field.count >= Count::Counted) {
        text += counterText(field.counter);
    }
    if (field.bound.width != 0) {
        text += " read-up-to" + counterText(field.bound);
    }
    if (field.columns != 0) {
        text += " rows-of-" + std::to_string(field.columns);
    }
    return text + (field.isTwin ? " twin" : kDirections[static_cast<std::size_t>(field.direction)]);
}

void listTable(const Table& table, int depth, std::string& out)
{
    for (const Field& field : table.rows) {
        char line[256];
        const std::string key = std::string(static_cast<std::size_t>(depth) * 2, ' ') + field.key;
        const Element element = field.count == Count::Members ? Element::Record : field.written;
        std::string written = elementText(field, element, field.isWrittenSigned);
        for (int i = 0; i < field.rank; ++i) {
            written += "[" + std::to_string(field.extents[i]) + "]";
        }
        std::snprintf(line, sizeof line, "%-36s %-16s %-12s @%-6u %6zu%s", key.c_str(), written.c_str(),
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
