#include "json_editor.h"

#include <algorithm>

namespace qv::tools {
namespace {

constexpr std::string_view kBlanks = " \t";

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

} // namespace

std::string TextEdits::applied(std::string_view text) const
{
    std::vector<const Edit*> sorted;
    for (const Edit& edit : edits_) {
        sorted.push_back(&edit);
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Edit* pLeft, const Edit* pRight) { return pLeft->begin < pRight->begin; });
    std::string result;
    std::size_t at = 0;
    for (const Edit* pEdit : sorted) {
        result += text.substr(at, pEdit->begin - at);
        result += pEdit->text;
        at = pEdit->end;
    }
    return result.append(text.substr(at));
}

JsonEditor::JsonEditor(const Document& document) : document_(document), text_(document.text())
{
    // The layout is that of the document's first values: what stands before a member, behind a key, between numbers.
    const DocumentNode& root = document_[0];
    const std::string_view inside = document_.slice(root.value);
    layout_.newline = inside.find("\r\n") != std::string_view::npos ? "\r\n"
                      : inside.find('\n') != std::string_view::npos ? "\n"
                                                                    : "";
    bool hasColon = false;
    bool hasComma = false;
    for (const DocumentNode& node : document_.nodes()) {
        if (!node.key.isEmpty() && !hasColon) {
            const std::string_view colon = text_.substr(node.key.end, node.value.begin - node.key.end);
            hasColon = isBlank(colon.substr(colon.find(':') + 1)) && isBlank(colon.substr(0, colon.find(':')));
            layout_.colon = hasColon ? colon : layout_.colon;
        }
        if (node.key.isEmpty() && node.next != kNoNode && !node.isContainer() && !hasComma) {
            const std::string_view comma =
                text_.substr(node.value.end, document_[node.next].value.begin - node.value.end);
            hasComma = comma.front() == ',' && isBlank(comma.substr(1));
            layout_.comma = hasComma ? comma : layout_.comma;
        }
    }
    if (!hasComma && hasColon && layout_.colon == ":") {
        layout_.comma = ",";
    }
    if (root.first != kNoNode && isFirstOnLine(document_[root.first].key.begin)) {
        const std::string unit = indentAt(document_[root.first].key.begin);
        layout_.unit = unit.empty() ? layout_.unit : unit;
    }
    inline_ = layout_;
    inline_.newline.clear();
}

bool JsonEditor::isFirstOnLine(std::size_t at) const
{
    const std::size_t before = text_.substr(0, at).find_last_not_of(kBlanks);
    return before != std::string_view::npos && text_[before] == '\n';
}

/// The blanks at the begin of a line.
std::string JsonEditor::indentAt(std::size_t at) const
{
    const std::size_t begin = text_.substr(0, at).rfind('\n') + 1; // 0 in the first line
    return std::string(text_.substr(begin, text_.find_first_not_of(kBlanks, begin) - begin));
}

/// Behind the comments that follow on the same line.
std::size_t JsonEditor::behindComments(std::size_t at) const
{
    const std::vector<DocumentComment>& comments = document_.comments();
    auto comment =
        std::lower_bound(comments.begin(), comments.end(), at,
                         [](const DocumentComment& each, std::size_t place) { return each.place.begin < place; });
    for (; comment != comments.end() && isBlank(text_.substr(at, comment->place.begin - at)); ++comment) {
        at = comment->place.end;
        while (text_[at - 1] == '\n' || text_[at - 1] == '\r') {
            --at;
        }
    }
    return at;
}

/// Behind the comma that follows a value.
std::size_t JsonEditor::behindComma(std::size_t at) const
{
    auto comment = document_.comments().begin();
    while (text_[at] != ',') {
        while (comment != document_.comments().end() && comment->place.begin < at) {
            ++comment;
        }
        const bool isComment = comment != document_.comments().end() && comment->place.begin == at;
        at = isComment ? comment->place.end : at + 1;
    }
    return at + 1;
}

void JsonEditor::replace(NodeIndex node, const std::string& text)
{
    edits_.replace(document_[node].value.begin, document_[node].value.end, text);
}

void JsonEditor::replace(NodeIndex node, const Value& value)
{
    const Span key = document_[node].key;
    const bool isOwnLine = isFirstOnLine(key.isEmpty() ? document_[node].value.begin : key.begin);
    replace(node, value(isOwnLine ? layout_ : inline_, indentAt(document_[node].value.begin)));
}

void JsonEditor::addBehind(NodeIndex sibling, const std::string& indent, bool isOwnLine, const std::string& text)
{
    const DocumentNode& node = document_[sibling];
    const bool isLast = node.next == kNoNode;
    const std::size_t value = isLast ? node.value.end : behindComma(node.value.end);
    const std::size_t behind = behindComments(value);
    // A comment behind the sibling stays with it, and one that ends with the line ends what stands on it.
    if (isOwnLine || (behind != value && !text_.substr(0, behind).ends_with("*/"))) {
        if (isLast) {
            edits_.insert(node.value.end, ",");
        }
        edits_.insert(behind, layout_.newline + indent + text + (isLast ? "" : ","));
    } else if (isLast) {
        edits_.insert(behind, layout_.comma + text);
    } else {
        edits_.insert(value, layout_.comma.substr(1) + text + ',');
    }
}

/// Puts text into a container that has nothing in it but perhaps comments.
void JsonEditor::fill(NodeIndex container, const Layout& layout, const std::string& indent, const std::string& text)
{
    const Span span = document_[container].value;
    std::size_t begin = span.begin + 1;
    for (const DocumentComment& comment : document_.comments()) {
        if (comment.place.begin >= begin && comment.place.end < span.end) {
            begin = comment.place.end;
        }
    }
    // Behind a comment it is always a line of its own, since the comment may go to the line's end.
    const bool isOwnLine = !layout.newline.empty() || begin != span.begin + 1;
    const std::string newline = isOwnLine && layout.newline.empty() ? "\n" : layout.newline;
    edits_.replace(begin, span.end - 1, isOwnLine ? newline + indent + layout.unit + text + newline + indent : text);
}

void JsonEditor::addMember(NodeIndex object, const std::string& key, const std::vector<std::string>& order,
                           const Value& value)
{
    const std::string head = writtenText(key) + layout_.colon;
    const DocumentNode& node = document_[object];
    if (node.first == kNoNode) {
        const bool isLong = document_.slice(node.value).find('\n') != std::string_view::npos;
        const std::string indent = indentAt(isFirstOnLine(node.value.end - 1) ? node.value.end - 1 : node.value.begin);
        const bool isOwnLine =
            !layout_.newline.empty() && (isLong || (!node.key.isEmpty() && isFirstOnLine(node.key.begin)));
        const Layout& layout = isOwnLine ? layout_ : inline_;
        fill(object, layout, indent, head + value(layout, indent + layout.unit));
        return;
    }
    const auto self = std::find(order.begin(), order.end(), key);
    NodeIndex sibling = kNoNode;
    for (auto before = self; before != order.begin() && sibling == kNoNode;) {
        sibling = document_.member(object, *--before);
    }
    NodeIndex behind = kNoNode;
    for (auto after = self; sibling == kNoNode && after != order.end() && behind == kNoNode; ++after) {
        behind = document_.member(object, *after);
    }
    if (sibling == kNoNode && behind == kNoNode) {
        for (sibling = node.first; document_[sibling].next != kNoNode;) {
            sibling = document_[sibling].next;
        }
    }
    const std::size_t at = document_[sibling != kNoNode ? sibling : behind].key.begin;
    const std::string indent = indentAt(at);
    // Members that share a line get their new neighbour on it.
    const NodeIndex next = sibling != kNoNode ? document_[sibling].next : kNoNode;
    const bool isOwnLine = isFirstOnLine(at) && (next == kNoNode || isFirstOnLine(document_[next].key.begin));
    const std::string text = head + value(isOwnLine ? layout_ : inline_, indent);
    if (sibling != kNoNode) {
        addBehind(sibling, indent, isOwnLine, text);
    } else if (isOwnLine) {
        // Comments above the member behind stay with it.
        edits_.insert(behindComments(node.value.begin + 1), layout_.newline + indent + text + ',');
    } else {
        edits_.insert(at, text + layout_.comma);
    }
}

void JsonEditor::addItems(NodeIndex list, const std::vector<Value>& values)
{
    const DocumentNode& node = document_[list];
    NodeIndex last = node.first;
    while (last != kNoNode && document_[last].next != kNoNode) {
        last = document_[last].next;
    }
    const bool isOwnLine = last != kNoNode && isFirstOnLine(document_[last].value.begin);
    // Items of several lines stand as the last one does, or one level deeper than the list.
    std::string indent = indentAt(node.value.begin) + layout_.unit;
    bool isLong = !layout_.newline.empty() && (node.key.isEmpty() || isFirstOnLine(node.key.begin));
    if (last != kNoNode && document_[last].isContainer()) {
        const Span span = document_[last].value;
        isLong = document_.slice(span).find('\n') != std::string_view::npos;
        indent = isFirstOnLine(span.end - 1) ? indentAt(span.end - 1) : indent;
    }
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const Value& value : values) {
        texts.push_back(value(isLong ? layout_ : inline_, isOwnLine ? indentAt(document_[last].value.begin) : indent));
    }
    if (last == kNoNode) {
        fill(list, inline_, "", joined(texts, layout_.comma));
        return;
    }
    const std::string before = indentAt(document_[last].value.begin);
    addBehind(last, before, isOwnLine, joined(texts, isOwnLine ? ',' + layout_.newline + before : layout_.comma));
}

} // namespace qv::tools
