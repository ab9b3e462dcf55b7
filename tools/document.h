#pragma once

// A text document with the places of all that stands in it. The tree that a load makes keeps none.

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <qv_json_c/json_value.h>

#include "files.h"

namespace qv::tools {

using NodeIndex = std::uint32_t;
constexpr NodeIndex kNoNode = UINT32_MAX;

/// A stretch of the text, in bytes from its first one.
struct Span {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;

    bool isEmpty() const { return begin == end; }
};

/// A value, with its key where it is a member. Of an `.ini` text the root is an object of sections, a section an object
/// of its members, and a member a text, or null where it has no value.
struct DocumentNode {
    QvJsonValueType_t type = QvJsonValueType_Null;
    bool isBroken = false; ///< a container with a fault in it: something of it may be missing
    NodeIndex parent = kNoNode;
    NodeIndex next = kNoNode;  ///< the one behind it in the same container
    NodeIndex first = kNoNode; ///< of a container
    std::uint32_t index = 0;   ///< which member or item it is; items that a fault has passed over count
    std::uint32_t count = 0;   ///< of a container: members or items
    Span key;                  ///< quotes included; of a section the header; empty for an item and the root
    Span value;                ///< quotes or brackets included; of a section all of it
    union {
        bool isTrue;
        std::int64_t integer; ///< one beyond 63 bits as the reader has it
        double number = 0;    ///< of a Float
    };

    bool isContainer() const { return type == QvJsonValueType_Object || type == QvJsonValueType_Array; }
};

/// What a reader would refuse.
struct DocumentFault {
    Span place;
    std::string words;              ///< the reader's own, as "expected ',' or ']'"
    std::size_t opened = SIZE_MAX;  ///< where the broken text or the open container around it began
    std::size_t suspect = SIZE_MAX; ///< the bracket to look at first; SIZE_MAX: none
    NodeIndex container = kNoNode;  ///< the innermost one around it
};

struct DocumentComment {
    Span place;
    bool isBehind; ///< stands behind a value on its line
};

/// Counted as the reader's traces count: from 1, columns of JSON in characters and of an `.ini` text in bytes.
struct TextPlace {
    std::size_t line;
    std::size_t column;
};

/// One text. It looks at the bytes it was given and doesn't keep them.
class Document {
public:
    /// Reads a text; faults are no failure. False, told in one line, when memory runs out.
    bool read(std::string_view text, Form form);

    Form form() const { return form_; }
    std::string_view text() const { return text_; }
    std::string_view slice(Span span) const { return text_.substr(span.begin, span.end - span.begin); }

    /// All nodes in the order of the text, the root first; empty for a text without a value.
    const std::vector<DocumentNode>& nodes() const { return nodes_; }
    const DocumentNode& operator[](NodeIndex node) const { return nodes_[node]; }
    const std::vector<DocumentFault>& faults() const { return faults_; }
    const std::vector<DocumentComment>& comments() const { return comments_; }

    /// Key or name of a section, without quotes and escapes.
    std::string_view key(NodeIndex node) const;
    /// Characters of a text, without quotes and escapes; empty for all others.
    std::string_view string(NodeIndex node) const;
    /// The number that a load would see: a bool is 0 or 1, texts, containers and null are 0.
    double number(NodeIndex node) const;
    std::int64_t integer(NodeIndex node) const;

    /// Member of an object, the last of that key; kNoNode where there is none.
    NodeIndex member(NodeIndex object, std::string_view key) const;
    /// Whether a load takes it for nothing: null, or a container without anything in it.
    bool isEmpty(NodeIndex node) const;
    bool isSigned(NodeIndex node) const { return slice(nodes_[node].value).starts_with('-'); }

    TextPlace place(std::size_t offset) const;
    /// A line of the text without its end, from 1.
    std::string_view line(std::size_t number) const;

private:
    friend struct DocumentBuilder;

    const std::vector<std::uint32_t>& lineStarts() const;

    std::string_view text_;
    Form form_ = Form::Json;
    std::vector<DocumentNode> nodes_;
    std::vector<DocumentFault> faults_;
    std::vector<DocumentComment> comments_;
    std::map<NodeIndex, std::string> keys_;    ///< those that don't stand in the text as they are
    std::map<NodeIndex, std::string> strings_; ///< likewise
    mutable std::vector<std::uint32_t> lineStarts_;
    mutable std::size_t lastOffset_ = SIZE_MAX; ///< the place asked for before
    mutable std::size_t lastColumn_ = 1;
};

} // namespace qv::tools
