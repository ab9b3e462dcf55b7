#include <algorithm>
#include <cstdio>
#include <span>
#include <string>
#include <vector>

#include "commands.h"
#include "document_fields.h"
#include "output.h"

namespace qv::tools {
namespace {

/// Lists of a category that its line names.
constexpr std::size_t kMostLists = 3;

using CatalogField = QvDatabaseCatalogField_t;

/// A list of records in a document.
struct CoveredList {
    std::string path;
    std::size_t items;
    std::size_t most; ///< 0 where it may be of any length
};

/// A category, or a part of one that another document carries as well.
struct Covered {
    std::string name;
    std::string document;
    std::size_t set = 0;
    std::size_t all = 0; ///< values that the document could set with the items it has
    std::vector<CoveredList> lists;

    std::size_t keeps() const { return all - std::min(set, all); }
};

struct PassedOver {
    NodeIndex node;
    std::string path;
    const char* pWhy;
};

const char* whyOf(Fate fate)
{
    switch (fate) {
    case Fate::Unknown:
        return "unknown";
    case Fate::Doubled:
        return "stands there again";
    case Fate::Unread:
        return "another key counts, or calibration lacks its header";
    case Fate::WrongKind:
        return "of a wrong kind";
    case Fate::PastEnd:
        return "behind the end of the list";
    default:
        return nullptr;
    }
}

bool isRead(const CatalogField& field)
{
    // A second key for the same field doesn't count twice.
    return !field.isTwin && field.direction != QvDatabaseCatalogDirection_WriteOnly &&
           field.direction != QvDatabaseCatalogDirection_ReadOnly;
}

/// Lists whose length a document says; the others have all their items, whatever it holds.
bool takesLength(const CatalogField& field)
{
    return field.count == QvDatabaseCatalogCount_Schedule || field.count == QvDatabaseCatalogCount_Measured ||
           field.count == QvDatabaseCatalogCount_Heap;
}

std::size_t itemsOf(const CatalogField& field)
{
    return field.extents[0] * field.extents[1] * field.extents[2];
}

/// Values of a record that a document says nothing of.
std::size_t valuesOf(std::span<const FieldNode> fields)
{
    std::size_t number = 0;
    for (const FieldNode& node : fields) {
        const CatalogField& field = node.field;
        if (isRead(field) && !(field.rank > 0 && takesLength(field))) {
            number += (node.fields.empty() ? 1 : valuesOf(node.fields)) * (field.pName == nullptr ? 1 : itemsOf(field));
        }
    }
    return number;
}

class Coverage {
public:
    Coverage(const DocumentFields& fields, const PathTree& tree) : fields_(fields), document_(fields.document())
    {
        for (const auto& pCategory : fields.categories()) {
            covered_.push_back({tree.category(pCategory->category.pKey).name,
                                QvDatabaseCatalog_document(pCategory->document),
                                0,
                                0,
                                {}});
            if (covered_.back().name.empty()) {
                covered_.back().name = "calibration";
            }
        }
        std::vector<NodeIndex> objects(covered_.size(), kNoNode);
        for (NodeIndex node = 0; node < document_.nodes().size(); ++node) {
            count(node, fields[node], tree);
            if (const NodeIndex object = objectOf(node, fields[node]); object != kNoNode) {
                objects[fields[node].category] = object;
            }
        }
        for (const auto& [node, bound] : fields.seconds()) {
            covered_[bound.category].set += bound.isTaken() ? 1U : 0U;
            objects[bound.category] = objectOf(node, bound);
        }
        for (std::size_t i = 0; i < covered_.size(); ++i) {
            const DocumentCategory& category = *fields.categories()[i];
            if (objects[i] != kNoNode) {
                covered_[i].all = valuesBelow(objects[i], category.fields);
            }
        }
    }

    const std::vector<Covered>& covered() const { return covered_; }
    const std::vector<PassedOver>& passedOver() const { return passedOver_; }

private:
    /// The object that holds a category's members, as one of them or the object itself tells.
    NodeIndex objectOf(NodeIndex node, const Bound& bound) const
    {
        if (!bound.hasCategory() || (bound.fate != Fate::Taken && bound.fate != Fate::Kept)) {
            return kNoNode;
        }
        const std::vector<FieldNode>& fields = fields_.category(bound).fields;
        const bool isMember = !fields.empty() && bound.pField >= &fields.front() && bound.pField <= &fields.back() &&
                              !document_[node].key.isEmpty();
        return bound.pField == nullptr ? node : (isMember ? document_[node].parent : kNoNode);
    }

    void count(NodeIndex node, const Bound& bound, const PathTree& tree)
    {
        const NodeIndex parent = document_[node].parent;
        if (whyOf(bound.fate) != nullptr) {
            const bool isToldOf =
                parent != kNoNode && (fields_[parent].fate == Fate::Unknown || document_.key(node) == "$schema");
            if (!isToldOf) {
                passedOver_.push_back({node, fields_.path(node, tree), whyOf(bound.fate)});
            }
            return;
        }
        if (!bound.isTaken() || bound.pField == nullptr) {
            return;
        }
        const CatalogField& field = bound.pField->field;
        const bool isRecord = !bound.pField->fields.empty();
        if (bound.open == 1 && isRecord) {
            const bool isHeap = field.count == QvDatabaseCatalogCount_Heap;
            covered_[bound.category].lists.push_back(
                {fields_.path(node, tree), document_[node].count, isHeap ? 0 : field.extents[0]});
        } else if (bound.open == 0 && !isRecord) {
            ++covered_[bound.category].set;
        }
    }

    std::size_t valuesBelow(NodeIndex object, const std::vector<FieldNode>& fields) const
    {
        std::size_t number = 0;
        for (const FieldNode& node : fields) {
            const CatalogField& field = node.field;
            if (!isRead(field)) {
                continue;
            }
            NodeIndex child = document_[object].first;
            while (child != kNoNode && fields_[child].pField != &node) {
                child = document_[child].next;
            }
            const bool isRecord = !node.fields.empty() && field.count != QvDatabaseCatalogCount_Members;
            if (!isRecord || child == kNoNode || !document_[child].isContainer()) {
                number += valuesOf({&node, 1});
            } else if (field.rank == 0 || field.pName == nullptr) {
                number += valuesBelow(child, node.fields);
            } else {
                std::size_t items = 0;
                for (NodeIndex item = document_[child].first; item != kNoNode; item = document_[item].next) {
                    if (fields_[item].fate != Fate::PastEnd) {
                        number += valuesBelow(item, node.fields);
                        ++items;
                    }
                }
                number += takesLength(field) ? 0 : (itemsOf(field) - items) * valuesOf(node.fields);
            }
        }
        return number;
    }

    const DocumentFields& fields_;
    const Document& document_;
    std::vector<Covered> covered_;
    std::vector<PassedOver> passedOver_;
};

std::string listText(const CoveredList& list, const std::string& category)
{
    std::string path = list.path;
    if (path.starts_with(category + '.')) {
        path.erase(0, category.size() + 1);
    }
    return path + ' ' + std::to_string(list.items) + (list.most == 0 ? "" : " of " + std::to_string(list.most));
}

/// Whether a document sets something of a category, maybe in another of its parts.
bool isShown(const Coverage& coverage, const std::string& name)
{
    return std::any_of(coverage.covered().begin(), coverage.covered().end(),
                       [&](const Covered& covered) { return covered.all != 0 && covered.name == name; });
}

void printText(const Coverage& coverage, const Document& document, const std::string& name)
{
    std::size_t width = 8;
    for (const Covered& covered : coverage.covered()) {
        width = std::max(width, covered.name.size());
    }
    const auto column = static_cast<int>(width);
    std::printf("%-*s  %6s  %6s  lists\n", column, "category", "sets", "keeps");
    std::vector<std::string> kept;
    std::size_t number = 0;
    for (const Covered& covered : coverage.covered()) {
        if (covered.all == 0) {
            if (!isShown(coverage, covered.name) && std::find(kept.begin(), kept.end(), covered.name) == kept.end()) {
                kept.push_back(covered.name);
            }
            continue;
        }
        number += covered.set;
        std::string lists;
        for (std::size_t i = 0; i < covered.lists.size() && i < kMostLists; ++i) {
            lists += (i == 0 ? "" : ", ") + listText(covered.lists[i], covered.name);
        }
        if (covered.lists.size() > kMostLists) {
            lists += ", " + std::to_string(covered.lists.size() - kMostLists) + " more";
        }
        std::printf("%-*s  %6zu  %6zu%s%s\n", column, covered.name.c_str(), covered.set, covered.keeps(),
                    lists.empty() ? "" : "  ", lists.c_str());
    }
    std::printf("%-*s  %6zu\n", column, "all", number);
    std::string line = "keep all their values:";
    for (const std::string& category : kept) {
        if (line.size() + category.size() >= 80) {
            std::printf("%s\n", line.c_str());
            line = " ";
        }
        line += ' ' + category;
    }
    if (!kept.empty()) {
        std::printf("%s\n", line.c_str());
    }
    for (const PassedOver& passed : coverage.passedOver()) {
        const DocumentNode& node = document[passed.node];
        const TextPlace place = document.place(node.key.isEmpty() ? node.value.begin : node.key.begin);
        std::printf("passed over: %s:%zu:%zu: %s: %s\n", name.c_str(), place.line, place.column, passed.path.c_str(),
                    passed.pWhy);
    }
}

void printJson(const Coverage& coverage, const Document& document, const std::string& name)
{
    std::printf("{\n  \"file\": %s,\n  \"categories\": [", jsonText(name).c_str());
    const char* pSeparator = "";
    for (const Covered& covered : coverage.covered()) {
        std::printf(
            "%s\n    {\"name\": %s, \"document\": %s, \"sets\": %zu, \"keeps\": %zu, \"isThere\": %s, \"lists\": [",
            pSeparator, jsonText(covered.name).c_str(), jsonText(covered.document).c_str(), covered.set,
            covered.keeps(), covered.all == 0 ? "false" : "true");
        pSeparator = ",";
        const char* pBetween = "";
        for (const CoveredList& list : covered.lists) {
            std::printf("%s{\"path\": %s, \"items\": %zu, \"most\": %s}", pBetween, jsonText(list.path).c_str(),
                        list.items, list.most == 0 ? "null" : std::to_string(list.most).c_str());
            pBetween = ", ";
        }
        std::printf("]}");
    }
    std::printf("\n  ],\n  \"passedOver\": [");
    pSeparator = "";
    for (const PassedOver& passed : coverage.passedOver()) {
        const DocumentNode& node = document[passed.node];
        const TextPlace place = document.place(node.key.isEmpty() ? node.value.begin : node.key.begin);
        std::printf("%s\n    {\"path\": %s, \"line\": %zu, \"column\": %zu, \"why\": %s}", pSeparator,
                    jsonText(passed.path).c_str(), place.line, place.column, jsonText(passed.pWhy).c_str());
        pSeparator = ",";
    }
    std::printf("%s]\n}\n", coverage.passedOver().empty() ? "" : "\n  ");
}

} // namespace

ExitStatus coverage(const Options& options)
{
    Input input;
    Document document;
    if (!readInput(options.words[0], options, input)) {
        return kRefused;
    }
    if (input.form != Form::Json && input.form != Form::Ini) {
        complain(input.shown() + ": coverage is that of a document; an image sets all values of all its records");
        return kRefused;
    }
    if (!document.read(input.bytes.view(), input.form)) {
        return kRefused;
    }
    if (!document.faults().empty()) {
        const TextPlace place = document.place(document.faults()[0].place.begin);
        complain(input.shown() + ": a load refuses it: " + document.faults()[0].words + " at line " +
                 std::to_string(place.line) + ", column " + std::to_string(place.column) + "; see qvdb check");
        return kRefused;
    }
    const DocumentFields fields(document);
    const Coverage coverage(fields, PathTree(options.names == "simulator"));
    options.asJson ? printJson(coverage, document, input.shown()) : printText(coverage, document, input.shown());
    return kDone;
}

} // namespace qv::tools
