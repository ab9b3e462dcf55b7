#include "document.h"

#include <algorithm>
#include <new>

#include <qv_common_c/common_error.h>
#include <qv_initialization/initialization_walk.h>
#include <qv_json_c/json_walk.h>

#include "output.h"

namespace qv::tools {
namespace {

Span spanOf(std::size_t begin, std::size_t end)
{
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
}

} // namespace

/// Takes the events of the walks.
struct DocumentBuilder {
    explicit DocumentBuilder(Document& document) : document_(document) {}

    static int visitJson(void* pUserData, const QvJsonWalkEvent_t* pEvent)
    {
        return guarded([&] { static_cast<DocumentBuilder*>(pUserData)->takeJson(*pEvent); });
    }

    static int visitIni(void* pUserData, const QvInitializationWalkEvent_t* pEvent)
    {
        return guarded([&] { static_cast<DocumentBuilder*>(pUserData)->takeIni(*pEvent); });
    }

    void beginIni()
    {
        add(QvJsonValueType_Object, spanOf(0, document_.text_.size()));
        open(0);
    }

private:
    struct Level {
        NodeIndex node;
        NodeIndex last; ///< its latest member or item
    };

    /// No exception may cross the library's C interface.
    template <class Take>
    static int guarded(const Take& take)
    {
        try {
            take();
            return 0;
        } catch (const std::bad_alloc&) {
            return QvCommonError_OutOfMemory;
        }
    }

    void open(NodeIndex node) { levels_.push_back({node, kNoNode}); }

    NodeIndex add(QvJsonValueType_t type, Span value)
    {
        std::vector<DocumentNode>& nodes = document_.nodes_;
        const auto index = static_cast<NodeIndex>(nodes.size());
        DocumentNode& node = nodes.emplace_back();
        node.type = type;
        node.value = value;
        if (!levels_.empty()) {
            Level& level = levels_.back();
            node.parent = level.node;
            node.index = nodes[level.node].count++;
            (level.last == kNoNode ? nodes[level.node].first : nodes[level.last].next) = index;
            level.last = index;
        }
        return index;
    }

    /// Keeps a text where it isn't what stands between the quotes.
    static void keep(std::map<NodeIndex, std::string>& texts, NodeIndex node, std::string_view written,
                     std::string_view decoded)
    {
        if (written.size() != decoded.size() + 2 || written.substr(1, decoded.size()) != decoded) {
            texts.emplace(node, decoded);
        }
    }

    void takeJson(const QvJsonWalkEvent_t& event)
    {
        const Span span = spanOf(event.begin, event.end);
        switch (event.kind) {
        case QvJsonWalkKind_Key:
            key_ = span;
            keyText_.assign(event.pText); // up to a zero character, as a load looks it up
            hasKey_ = true;
            break;
        case QvJsonWalkKind_ObjectBegin:
        case QvJsonWalkKind_ArrayBegin:
            open(addJson(event, span));
            break;
        case QvJsonWalkKind_ObjectEnd:
        case QvJsonWalkKind_ArrayEnd:
            document_.nodes_[levels_.back().node].value.end = span.end;
            levels_.pop_back();
            break;
        case QvJsonWalkKind_Value:
            addJson(event, span);
            break;
        case QvJsonWalkKind_Comment:
            document_.comments_.push_back({span, event.isBehind});
            break;
        case QvJsonWalkKind_Fault:
            hasKey_ = false;
            addFault({span, {event.pText, event.length}, event.opened, event.suspect, kNoNode});
            break;
        }
    }

    NodeIndex addJson(const QvJsonWalkEvent_t& event, Span span)
    {
        const NodeIndex index = add(event.type, span);
        DocumentNode& node = document_.nodes_[index];
        if (node.parent != kNoNode) {
            DocumentNode& parent = document_.nodes_[node.parent];
            node.index = static_cast<std::uint32_t>(event.index);
            parent.count = node.index + 1;
        }
        if (hasKey_) {
            hasKey_ = false;
            node.key = key_;
            keep(document_.keys_, index, document_.slice(key_), keyText_);
        }
        switch (event.type) {
        case QvJsonValueType_Boolean:
            node.isTrue = event.value.holder._bool;
            break;
        case QvJsonValueType_Float:
            node.number = event.value.holder._float;
            break;
        case QvJsonValueType_Integer:
            node.integer = event.value.holder.integer;
            break;
        case QvJsonValueType_String:
            keep(document_.strings_, index, document_.slice(span), {event.pText, event.length});
            break;
        default:
            break;
        }
        return index;
    }

    void takeIni(const QvInitializationWalkEvent_t& event)
    {
        const Span span = spanOf(event.begin, event.end);
        switch (event.kind) {
        case QvInitializationWalkKind_Section: {
            endSection(span.begin);
            const NodeIndex section = add(QvJsonValueType_Object, spanOf(span.begin, document_.text_.size()));
            document_.nodes_[section].key = span;
            document_.keys_.emplace(section, std::string(event.pText, event.length));
            open(section);
            break;
        }
        case QvInitializationWalkKind_Member: {
            const NodeIndex member = add(event.pValue == nullptr ? QvJsonValueType_Null : QvJsonValueType_String,
                                         spanOf(event.valueBegin, event.valueEnd));
            document_.nodes_[member].key = span;
            document_.keys_.emplace(member, std::string(event.pText, event.length));
            if (event.pValue != nullptr) {
                document_.strings_.emplace(member, std::string(event.pValue, event.valueLength));
            }
            break;
        }
        case QvInitializationWalkKind_Comment:
            document_.comments_.push_back({span, event.isBehind});
            break;
        case QvInitializationWalkKind_Fault:
            addFault({span, {event.pText, event.length}, SIZE_MAX, SIZE_MAX, kNoNode});
            break;
        }
    }

    void endSection(std::uint32_t end)
    {
        if (levels_.size() > 1) {
            document_.nodes_[levels_.back().node].value.end = end;
            levels_.pop_back();
        }
    }

    void addFault(DocumentFault fault)
    {
        if (!levels_.empty()) {
            fault.container = levels_.back().node;
            document_.nodes_[fault.container].isBroken = true;
        }
        document_.faults_.push_back(std::move(fault));
    }

    Document& document_;
    std::vector<Level> levels_;
    Span key_;
    std::string keyText_;
    bool hasKey_ = false;
};

bool Document::read(std::string_view text, Form form)
{
    *this = {};
    text_ = text;
    form_ = form;
    nodes_.reserve(text.size() / 4); // no number and comma is shorter, and what isn't touched costs nothing
    DocumentBuilder builder(*this);
    int status = 0;
    if (form == Form::Ini) {
        QvInitializationReaderHandle_t reader = 0;
        QvInitializationReader_open(&reader);
        builder.beginIni();
        status = QvInitializationReader_walk(reader, text.data(), text.data() + text.size(), &DocumentBuilder::visitIni,
                                             &builder);
        QvInitializationReader_close(&reader);
    } else {
        QvJsonReaderHandle_t reader = 0;
        QvJsonReader_open(&reader);
        status =
            QvJsonReader_walk(reader, text.data(), text.data() + text.size(), &DocumentBuilder::visitJson, &builder);
        QvJsonReader_close(&reader);
    }
    if (status == 0 || status == QvCommonError_Syntax) {
        return true;
    }
    complain(std::string(QvCommonError_text(status)) + " (" + std::to_string(status) + ')');
    return false;
}

std::string_view Document::key(NodeIndex node) const
{
    if (const auto found = keys_.find(node); found != keys_.end()) {
        return found->second;
    }
    const Span span = nodes_[node].key;
    return span.isEmpty() ? std::string_view() : slice({span.begin + 1, span.end - 1});
}

std::string_view Document::string(NodeIndex node) const
{
    if (nodes_[node].type != QvJsonValueType_String) {
        return {};
    }
    if (const auto found = strings_.find(node); found != strings_.end()) {
        return found->second;
    }
    const Span span = nodes_[node].value;
    return slice({span.begin + 1, span.end - 1});
}

double Document::number(NodeIndex node) const
{
    switch (nodes_[node].type) {
    case QvJsonValueType_Boolean:
        return nodes_[node].isTrue ? 1 : 0;
    case QvJsonValueType_Float:
        return nodes_[node].number;
    case QvJsonValueType_Integer:
        return static_cast<double>(nodes_[node].integer);
    default:
        return 0;
    }
}

std::int64_t Document::integer(NodeIndex node) const
{
    switch (nodes_[node].type) {
    case QvJsonValueType_Boolean:
        return nodes_[node].isTrue ? 1 : 0;
    case QvJsonValueType_Integer:
        return nodes_[node].integer;
    case QvJsonValueType_Float: {
        QvJsonValue_t value{};
        value.type = QvJsonValueType_Float;
        value.holder._float = nodes_[node].number;
        return QvJsonValue_asInteger(&value);
    }
    default:
        return 0;
    }
}

NodeIndex Document::member(NodeIndex object, std::string_view wanted) const
{
    NodeIndex found = kNoNode;
    if (nodes_[object].type == QvJsonValueType_Object) {
        for (NodeIndex node = nodes_[object].first; node != kNoNode; node = nodes_[node].next) {
            if (key(node) == wanted) {
                found = node;
            }
        }
    }
    return found;
}

bool Document::isEmpty(NodeIndex node) const
{
    return nodes_[node].type == QvJsonValueType_Null || (nodes_[node].isContainer() && nodes_[node].count == 0);
}

const std::vector<std::uint32_t>& Document::lineStarts() const
{
    if (lineStarts_.empty()) {
        lineStarts_.push_back(0);
        const char* pEnd = text_.data() + text_.size();
        for (const char* p = text_.data(); p != pEnd; ++p) {
            const bool isEnd = *p == '\n' || (form_ == Form::Ini && *p == '\r' && (p + 1 == pEnd || p[1] != '\n'));
            if (isEnd) {
                lineStarts_.push_back(static_cast<std::uint32_t>(p + 1 - text_.data()));
            }
        }
    }
    return lineStarts_;
}

TextPlace Document::place(std::size_t offset) const
{
    const std::vector<std::uint32_t>& starts = lineStarts();
    const auto behind = std::upper_bound(starts.begin(), starts.end(), offset);
    std::size_t begin = *(behind - 1);
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (form_ == Form::Ini && begin == 0 && text_.starts_with(kByteOrderMark)) {
        begin = std::min(offset, kByteOrderMark.size()); // no column of its own in an .ini text
    }
    TextPlace place{static_cast<std::size_t>(behind - starts.begin()), 1};
    // Places are asked for one behind the other, and a whole document may stand on one line.
    if (lastOffset_ >= begin && lastOffset_ <= offset) {
        begin = lastOffset_;
        place.column = lastColumn_;
    }
    for (std::size_t i = begin; i < offset; ++i) {
        place.column += form_ == Form::Ini || (text_[i] & 0xC0) != 0x80 ? 1U : 0U;
    }
    lastOffset_ = offset;
    lastColumn_ = place.column;
    return place;
}

std::string_view Document::line(std::size_t number) const
{
    const std::vector<std::uint32_t>& starts = lineStarts();
    const std::size_t begin = starts[number - 1];
    const std::size_t end = number < starts.size() ? starts[number] : text_.size();
    std::string_view line = text_.substr(begin, end - begin);
    while (line.ends_with('\n') || line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

} // namespace qv::tools
