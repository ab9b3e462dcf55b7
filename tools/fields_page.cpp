// make_fields_page FILE: writes the page of all fields, one HTML file that needs nothing else.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "field_index.h"
#include "field_words.h"
#include "fields_page_style.h"

using namespace qv::tools;

namespace {

using CatalogField = QvDatabaseCatalogField_t;

std::string escaped(std::string_view text)
{
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += c;
            break;
        }
    }
    return html;
}

/// Comments mark names by backquotes.
std::string prose(const char* pText)
{
    std::string html;
    bool isCode = false;
    for (const char c : escaped(pText == nullptr ? "" : pText)) {
        if (c == '`') {
            html += isCode ? "</code>" : "<code>";
            isCode = !isCode;
        } else {
            html += c;
        }
    }
    return html + (isCode ? "</code>" : "");
}

std::string documentTag(QvDatabaseCatalogDocument_t document)
{
    return std::string("<span class=\"doc ") + QvDatabaseCatalog_document(document) + "\">" + documentName(document) +
           "</span>";
}

/// Keys that differ in their index alone, as one: "paths[0…2].enable".
std::string joinedKeys(const std::string& first, const std::string& last)
{
    const std::size_t open = first.find('[');
    const std::size_t close = last.find(']');
    if (first == last || open == std::string::npos || close == std::string::npos) {
        return first;
    }
    return first.substr(0, first.find(']')) + "…" + last.substr(open + 1, close - open - 1) + last.substr(close);
}

/// Whether two keys of an initialization file are elements of one list.
bool areElements(const Stand& a, const Stand& b)
{
    const std::size_t open = a.key.find('[');
    return a.document == b.document && a.document == QvDatabaseCatalogDocument_Initialization &&
           open != std::string::npos && a.key.substr(0, open + 1) == b.key.substr(0, open + 1) &&
           a.key.substr(a.key.find(']')) == b.key.substr(b.key.find(']'));
}

std::string standsHtml(const Member& member)
{
    std::string html;
    const std::vector<Stand>& stands = member.stands;
    for (std::size_t i = 0; i < stands.size(); ++i) {
        std::string all = stands[i].key;
        std::size_t last = i;
        while (last + 1 < stands.size() && areElements(stands[i], stands[last + 1])) {
            ++last;
            all += " " + stands[last].key;
        }
        html += "<div>" + documentTag(stands[i].document) + " <code class=\"key\" data-keys=\"" + escaped(all) + "\">" +
                escaped(joinedKeys(stands[i].key, stands[last].key)) + "</code>";
        for (const std::string& word : oddities(stands[i].field, member.field)) {
            html += " <i>" + escaped(word) + "</i>";
        }
        html += "</div>";
        i = last;
    }
    return html;
}

std::string factsHtml(const CatalogField& field)
{
    std::string html;
    const auto add = [&html](const char* pClass, const std::string& text) {
        if (!text.empty()) {
            html += std::string(" <span class=\"") + pClass + "\">" + text + "</span>";
        }
    };
    add("range", rangeText(field));
    add("unit", field.pUnit == nullptr ? "" : escaped(field.pUnit));
    const std::string other = field.pOther == nullptr ? "" : std::string("<code>") + escaped(field.pOther) + "</code>";
    add("role", roleText(field, other));
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        html += "<div class=\"value\"><b>" + std::to_string(value.value) + "</b> <code title=\"" + value.pName + "\">" +
                escaped(value.pShort) + "</code> " + prose(value.pMeaning) + "</div>";
    }
    return html;
}

void addCell(std::string& html, const char* pClass, const std::string& content)
{
    html.append("<td class=\"").append(pClass).append("\">").append(content).append("</td>");
}

/// The rows of a record's members. imageOffset is the place of the record's first byte in the image, if it is there.
void addRows(std::string& html, const std::string& path, const std::vector<Member>& members, std::size_t depth,
             std::size_t imageOffset)
{
    for (const Member& member : members) {
        const CatalogField& field = member.field;
        const std::string id = path + "." + field.pName;
        const bool isInImage = imageOffset != SIZE_MAX && !member.isBehindPointer;
        const std::size_t place = isInImage ? imageOffset + field.offset : SIZE_MAX;
        html.append("<tr class=\"member").append(member.isBehindPointer ? " heap" : "");
        html.append("\" id=\"").append(id).append("\">");
        html.append("<td class=\"name\" style=\"--depth:").append(std::to_string(depth)).append("\">");
        html.append("<a href=\"#").append(id).append("\">").append(field.pName).append("</a></td>");
        addCell(html, "type", "<code>" + typeText(field) + "</code>");
        addCell(html, "number", std::to_string(field.offset));
        addCell(html, "number", isInImage ? std::to_string(place) : "");
        addCell(html, "meaning", prose(field.pMeaning) + factsHtml(field));
        addCell(html, "stands", standsHtml(member));
        html += "</tr>\n";
        addRows(html, id, member.members, depth + 1, place);
    }
}

std::string categoryHtml(const IndexedCategory& indexed)
{
    const QvDatabaseCatalogCategory_t& category = indexed.category;
    const std::string key = category.pKey;
    std::string html = "<section id=\"" + key + "\">\n<h2><a href=\"#" + key + "\">" + key + "</a> <small><code>" +
                       category.pRecord + "</code> " + std::to_string(category.recordSize) +
                       " bytes</small></h2>\n<p>" + prose(category.pMeaning) + "</p>\n<p class=\"places\">";
    if (category.imageOffset != SIZE_MAX) {
        html += documentTag(QvDatabaseCatalogDocument_Image) + " at " + std::to_string(category.imageOffset) + " ";
    }
    for (std::size_t i = 0; i < indexed.entries.size(); ++i) {
        const QvDatabaseCatalogCategory_t& entry = indexed.entries[i];
        const bool isSection = indexed.documents[i] == QvDatabaseCatalogDocument_Initialization;
        const std::string place = isSection ? std::string("[") + entry.pPlace + "]" : entry.pPlace;
        html += documentTag(indexed.documents[i]) + " <code>" + (place.empty() ? "" : escaped(place)) + "</code>" +
                (place.empty() ? "whole document" : "");
        if (entry.pClass != nullptr) {
            html += std::string(" <code>") + entry.pClassKey + ": \"" + escaped(entry.pClass) + "\"</code>";
        }
        html += entry.isWritten ? " " : " <i>only read</i> ";
    }
    if (category.imageOffset == SIZE_MAX && indexed.entries.empty()) {
        html += "in memory only";
    }
    html += "</p>\n<table><thead><tr><th>member</th><th>type</th><th>offset</th><th>in image</th><th>meaning</th>"
            "<th>in documents</th></tr></thead><tbody>\n";
    addRows(html, key, indexed.members, 0, category.imageOffset);
    return html + "</tbody></table>\n</section>\n";
}

std::string page()
{
    const std::vector<IndexedCategory> index = indexFields();
    std::string html = kPageBegin;
    html += "<nav><input id=\"filter\" type=\"search\" placeholder=\"filter members and keys\" aria-label=\"filter\">"
            "<ol>\n";
    for (const IndexedCategory& indexed : index) {
        html += std::string("<li><a href=\"#") + indexed.category.pKey + "\" title=\"" + indexed.category.pRecord +
                "\">" + indexed.category.pKey + "</a></li>\n";
    }
    html += "</ol></nav>\n<main>\n";
    html += kPageLegend;
    for (const IndexedCategory& indexed : index) {
        html += categoryHtml(indexed);
    }
    html += "</main>\n";
    return html + kPageEnd;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: make_fields_page FILE\n", stderr);
        return 2;
    }
    std::ofstream file(argv[1], std::ios::binary);
    file << page();
    file.close();
    if (!file) {
        std::perror(argv[1]);
        return 1;
    }
    return 0;
}
