// The part of a TextSetter that adds lines to `.ini` texts.

#include "text_setter.h"

#include <algorithm>
#include <string_view>

namespace qv::tools {
namespace {

std::size_t endOfLine(std::string_view text, std::size_t at)
{
    return std::min(text.find_first_of("\r\n", at), text.size());
}

/// The begin of a line, or of the comment lines that stand right above it.
std::size_t beginOfBlock(std::string_view text, std::size_t at)
{
    std::size_t begin = text.substr(0, at).find_last_of("\r\n") + 1; // 0 in the first line
    while (begin > 0) {
        std::size_t end = begin - 1;
        end -= end > 0 && text[end] == '\n' && text[end - 1] == '\r' ? 1U : 0U;
        const std::size_t above = text.substr(0, end).find_last_of("\r\n") + 1;
        const std::size_t first = text.find_first_not_of(" \t", above);
        if (first >= end || (text[first] != ';' && text[first] != '#')) {
            break;
        }
        begin = above;
    }
    return begin;
}

} // namespace

/// Adds a member behind those that the library writes before it, and its section where there is none.
void TextSetter::addInitialization(const Reach& reach, NodeIndex section)
{
    const std::string newline = text_.find("\r\n") != std::string::npos ? "\r\n" : "\n";
    const std::string head = std::string(reach.route.pLeaf->field.pKey);
    const std::string value = writtenInitialization(reach.route.pLeaf->field, reach.route.bytes(recordOf(reach)));
    if (section == kNoNode) {
        const std::string block =
            std::string("[") + reach.category.pPlace + ']' + newline + head + " = " + value + newline;
        NodeIndex before = kNoNode;
        for (const QvDatabaseCatalogCategory_t& category : categoriesOf(reach.document)) {
            if (std::string_view(category.pPlace) == reach.category.pPlace) {
                break;
            }
            const NodeIndex found = document_.member(0, category.pPlace);
            before = found != kNoNode ? found : before;
        }
        const NodeIndex behind = before == kNoNode ? document_[0].first : document_[before].next;
        if (behind != kNoNode) {
            edits_.insert(beginOfBlock(text_, document_[behind].key.begin), block + newline);
        } else {
            const bool isOpen = !text_.empty() && text_.back() != '\n' && text_.back() != '\r';
            edits_.insert(text_.size(), (isOpen ? newline : "") + (text_.empty() ? "" : newline) + block);
        }
        finish();
        return;
    }
    // Signs and blanks around them are those of the neighbour.
    std::size_t at = document_[section].key.end;
    std::string sign = " = ";
    for (const FieldNode& field : fields_.of(reach.document, reach.category)) {
        if (&field == reach.route.steps[0].pField) {
            break;
        }
        const NodeIndex found = document_.member(section, field.field.pKey);
        if (found != kNoNode) {
            const DocumentNode& node = document_[found];
            at = std::max(node.key.end, node.value.end);
            sign = node.value.isEmpty() ? sign : text_.substr(node.key.end, node.value.begin - node.key.end);
        }
    }
    edits_.insert(endOfLine(text_, at), newline + head + sign + value);
    finish();
}

} // namespace qv::tools
