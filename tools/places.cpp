#include "places.h"

#include <array>
#include <string_view>

namespace qv::tools {
namespace {

using QvDocument = QvDatabaseCatalogDocument_t;

/// What stands in a text document, in the order in which a load reads it.
constexpr std::array kLoaded = {QvDatabaseCatalogDocument_Version, QvDatabaseCatalogDocument_Simulator,
                                QvDatabaseCatalogDocument_Calibration, QvDatabaseCatalogDocument_Tuning};

/// The member that names the class of the items at a place; null where they have none.
const char* classKeyAt(QvDocument document, std::string_view place)
{
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
        if (category.pClassKey != nullptr && category.pPlace == place) {
            return category.pClassKey;
        }
    }
    return nullptr;
}

} // namespace

std::vector<QvDatabaseCatalogDocument_t> Places::documents() const
{
    if (document_.form() == Form::Ini) {
        return {QvDatabaseCatalogDocument_Initialization};
    }
    return {kLoaded.begin(), kLoaded.end()};
}

std::vector<NodeIndex> Places::nodesAt(QvDocument document, std::string_view place) const
{
    std::vector<NodeIndex> nodes{0};
    for (std::size_t end = 0; end < place.size();) {
        const std::size_t begin = end + 1;
        end = std::min(place.find('/', begin), place.size());
        const std::string_view name = place.substr(begin, end - begin);
        const char* pClassKey = name == "*" ? classKeyAt(document, place.substr(0, end)) : nullptr;
        std::vector<NodeIndex> inner;
        for (const NodeIndex node : nodes) {
            if (name != "*") {
                if (const NodeIndex member = document_.member(node, name); member != kNoNode) {
                    inner.push_back(member);
                }
                continue;
            }
            // Here stand the items without a class; those with one are looked for by it.
            for (NodeIndex i = document_[node].first; i != kNoNode; i = document_[i].next) {
                const NodeIndex named = pClassKey == nullptr ? kNoNode : document_.member(i, pClassKey);
                if (document_[i].type == QvJsonValueType_Object && (named == kNoNode || document_.isEmpty(named))) {
                    inner.push_back(i);
                }
            }
        }
        nodes.swap(inner);
    }
    return nodes;
}

std::vector<NodeIndex> Places::objectsOf(QvDocument document, const QvDatabaseCatalogCategory_t& category) const
{
    std::vector<NodeIndex> found;
    if (document_.form() == Form::Ini) {
        for (NodeIndex i = document_[0].first; i != kNoNode; i = document_[i].next) {
            if (document_[i].type == QvJsonValueType_Object && document_.key(i) == category.pPlace) {
                found.push_back(i);
            }
        }
        return found;
    }
    if (category.pClass == nullptr) {
        return nodesAt(document, category.pPlace);
    }
    std::string_view list = category.pPlace;
    list.remove_suffix(std::string_view("/*").size());
    for (const NodeIndex node : nodesAt(document, list)) {
        for (NodeIndex i = document_[node].first; i != kNoNode; i = document_[i].next) {
            const NodeIndex named = document_.member(i, category.pClassKey);
            if (named != kNoNode && document_.string(named) == category.pClass) {
                found.push_back(i);
            }
        }
    }
    return found;
}

NodeIndex Places::item(NodeIndex list, std::size_t index) const
{
    const bool isNear = lastList_ == list && lastItem_ != kNoNode && document_[lastItem_].index <= index;
    NodeIndex node = isNear ? lastItem_ : document_[list].first;
    while (node != kNoNode && document_[node].index < index) {
        node = document_[node].next;
    }
    lastList_ = list;
    lastItem_ = node;
    return node;
}

void Places::follow(Reach& reach) const
{
    for (reach.step = 0; reach.step < reach.route.steps.size(); ++reach.step) {
        const RouteStep& step = reach.route.steps[reach.step];
        reach.items = 0;
        reach.hasMember = false;
        NodeIndex member = document_.member(reach.node, step.pField->field.pKey);
        if (member == kNoNode && step.pTwin != nullptr) {
            member = document_.member(reach.node, step.pTwin->field.pKey);
        }
        if (member == kNoNode) {
            return;
        }
        reach.node = member;
        reach.hasMember = true;
        for (; reach.items < step.items.size(); ++reach.items) {
            const bool isList = document_[reach.node].type == QvJsonValueType_Array;
            const NodeIndex found = isList ? item(reach.node, step.items[reach.items]) : kNoNode;
            if (found == kNoNode) {
                return;
            }
            reach.node = found;
        }
    }
    reach.isWhole = true;
}

const std::vector<Places::Entry>& Places::entriesOf(const char* pKey) const
{
    const auto found = entries_.find(pKey);
    if (found != entries_.end()) {
        return found->second;
    }
    std::vector<Entry>& entries = entries_[pKey];
    for (const QvDocument document : documents()) {
        for (const QvDatabaseCatalogCategory_t& category : categoriesOf(document)) {
            // Frame metadata has files of its own.
            const bool isElsewhere = document != QvDatabaseCatalogDocument_Initialization &&
                                     isCarriedBy(category, QvDatabaseCatalogDocument_Meta);
            if (std::string_view(category.pKey) == pKey && !isElsewhere) {
                entries.push_back({document, category, objectsOf(document, category)});
            }
        }
    }
    return entries;
}

std::vector<Reach> Places::reaches(const Target& target) const
{
    std::vector<Reach> found;
    for (const Entry& entry : entriesOf(target.pCategory->category.pKey)) {
        Reach reach;
        if (findRoute(fields_.of(entry.document, entry.category), target, true, reach.route)) {
            reach.document = entry.document;
            reach.category = entry.category;
            found.push_back(reach);
        }
    }
    return found;
}

bool Places::find(const Target& target, Reach& found) const
{
    bool isFound = false;
    for (const Entry& entry : entriesOf(target.pCategory->category.pKey)) {
        Route route;
        if (!findRoute(fields_.of(entry.document, entry.category), target, true, route)) {
            continue;
        }
        for (const NodeIndex object : entry.objects) {
            Reach reach{entry.document, entry.category, route, object, 0, 0, false, false};
            follow(reach);
            // A member that is null leaves the field as it is; what stands before it counts.
            const bool isSet = reach.isWhole && !document_.isEmpty(reach.node);
            const bool wasSet = isFound && found.isWhole && !document_.isEmpty(found.node);
            if (isSet || !wasSet) {
                found = reach;
                isFound = true;
            }
        }
    }
    return isFound;
}

} // namespace qv::tools
