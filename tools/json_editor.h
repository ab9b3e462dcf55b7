#pragma once

// Changes of a JSON text at their places. All other bytes stay.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document.h"
#include "written.h"

namespace qv::tools {

/// Stretches of a text and what stands there instead.
class TextEdits {
public:
    void replace(std::size_t begin, std::size_t end, const std::string& text) { edits_.push_back({begin, end, text}); }
    void insert(std::size_t at, const std::string& text) { replace(at, at, text); }
    bool isEmpty() const { return edits_.empty(); }

    /// The text with all changes, those at the same place in the order in which they came; none overlap.
    std::string applied(std::string_view text) const;

private:
    struct Edit {
        std::size_t begin;
        std::size_t end;
        std::string text;
    };
    std::vector<Edit> edits_;
};

/// Adds to a document in the document's own style.
class JsonEditor {
public:
    /// Makes a value's text, in a layout, with the blanks before its closing bracket.
    using Value = std::function<std::string(const Layout& layout, const std::string& indent)>;

    explicit JsonEditor(const Document& document);

    void replace(NodeIndex node, const std::string& text);
    /// The same of a value that may take several lines.
    void replace(NodeIndex node, const Value& value);

    /// Adds a member to an object behind the nearest one that stands before it in `order`, or before the nearest behind
    /// it.
    void addMember(NodeIndex object, const std::string& key, const std::vector<std::string>& order, const Value& value);

    /// Adds items at the end of a list.
    void addItems(NodeIndex list, const std::vector<Value>& values);

    const TextEdits& edits() const { return edits_; }

private:
    bool isFirstOnLine(std::size_t at) const;
    std::string indentAt(std::size_t at) const;
    std::size_t behindComments(std::size_t at) const;
    std::size_t behindComma(std::size_t at) const;
    void addBehind(NodeIndex sibling, const std::string& indent, bool isOwnLine, const std::string& text);
    void fill(NodeIndex container, const Layout& layout, const std::string& indent, const std::string& text);

    const Document& document_;
    std::string_view text_;
    Layout layout_;
    Layout inline_; ///< the same on one line
    TextEdits edits_;
};

} // namespace qv::tools
