#include "explain.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "output.h"
#include "settings.h"

namespace qv::tools {
namespace {

/// A list of records whose length a load takes from the document.
bool isCounted(const Target& target)
{
    return target.rank > 0 && target.pNode->field.counterWidth != 0 &&
           target.pNode->field.count != QvDatabaseCatalogCount_Counted && target.rank == target.pNode->field.rank;
}

/// An address, or what the library keeps for itself.
bool isNoValue(const Target& target)
{
    return target.pNode->field.element == QvDatabaseCatalogElement_Pointer ||
           target.pNode->field.role == QvDatabaseCatalogRole_Handle;
}

Target elementAt(const Target& list, std::size_t index)
{
    Target element = list;
    while (element.rank > 0) {
        const std::size_t inner = element.extents[1] * element.extents[2];
        element = PathTree::item(element, index / inner);
        index %= inner;
    }
    return element;
}

std::string counted(std::size_t number, const char* pWhat)
{
    return std::to_string(number) + ' ' + pWhat + (number == 1 ? "" : "s");
}

} // namespace

bool Explanation::add(Input&& input)
{
    Lengths before;
    for (const QvDatabaseCatalogCategory_t& key : tree_.keys()) {
        noteLengths(PathTree::whole(tree_.category(key.pKey)), before);
    }
    if (!merged_.load(input)) {
        return false;
    }
    layers_.push_back(std::make_unique<MergedFile>(tracing_, std::move(input)));
    if (!layers_.back()->open(defaults_)) {
        return false;
    }
    if (layers_.size() > 1) {
        for (const QvDatabaseCatalogCategory_t& key : tree_.keys()) {
            const PathCategory& category = tree_.category(key.pKey);
            if (category.document == QvDatabaseCatalogDocument_Calibration) {
                noteCalibration(category);
            } else {
                noteReplaced(PathTree::whole(category), before);
            }
        }
    }
    return true;
}

/// The lengths of all lists that are counted.
void Explanation::noteLengths(const Target& target, Lengths& lengths) const
{
    if (target.rank > 0) {
        const std::size_t used = usedItems(target, merged_.record(target.pCategory->category.pKey));
        if (isCounted(target)) {
            lengths[target.path] = used;
        }
        for (std::size_t i = 0; i < used; ++i) {
            noteLengths(PathTree::item(target, i), lengths);
        }
        return;
    }
    for (const PathNode& node : PathTree::membersOf(target)) {
        if (!node.members.empty()) {
            noteLengths(PathTree::member(target, node), lengths);
        }
    }
}

/// Lists that the latest file has made shorter or longer, or has emptied since it lacks them.
void Explanation::noteReplaced(const Target& target, const Lengths& before)
{
    if (target.rank > 0) {
        const std::size_t used = usedItems(target, merged_.record(target.pCategory->category.pKey));
        const auto known = before.find(target.path);
        if (isCounted(target) && known != before.end() && known->second != 0 && known->second != used) {
            const MergedFile& layer = *layers_.back();
            replaced_.push_back(
                {target.path, layer.place(target), layer.jsonPlace(target),
                 counted(used, "item") + " instead of " + std::to_string(known->second) +
                     (layer.count(target) == 0 && layer.nodeOf(target) == kNoNode ? ", since it has none" : ""),
                 "\"before\": " + std::to_string(known->second) + ", \"after\": " + std::to_string(used) +
                     ", \"lost\": null"});
        }
        for (std::size_t i = 0; i < used; ++i) {
            noteReplaced(PathTree::item(target, i), before);
        }
        return;
    }
    for (const PathNode& node : PathTree::membersOf(target)) {
        if (!node.members.empty()) {
            noteReplaced(PathTree::member(target, node), before);
        }
    }
}

/// A text's calibration begins from a clean record: nothing of those before remains.
void Explanation::noteCalibration(const PathCategory& category)
{
    const Target whole = PathTree::whole(category);
    const MergedFile& last = *layers_.back();
    if (last.input().form == Form::CalibrationText || last.count(whole) == 0) {
        return;
    }
    for (std::size_t i = layers_.size() - 1; i-- > 0;) {
        const MergedFile& before = *layers_[i];
        if (before.input().form == Form::CalibrationText || before.count(whole) == 0) {
            continue;
        }
        const std::size_t lost = before.missingIn(last, category);
        replaced_.push_back({"calibration", last.place(whole), last.jsonPlace(whole),
                             "replaces that of " + before.input().shown() + " as a whole" +
                                 (lost == 0 ? ""
                                            : "; " + counted(lost, "value") + " that only that one sets " +
                                                  (lost == 1 ? "is" : "are") + " lost"),
                             "\"before\": null, \"after\": null, \"lost\": " + std::to_string(lost)});
        return;
    }
}

std::vector<std::size_t> Explanation::settersOf(const Target& target) const
{
    std::vector<std::size_t> setters;
    for (std::size_t i = 0; i < layers_.size(); ++i) {
        if (layers_[i]->count(target) > 0) {
            setters.push_back(i);
        }
    }
    return setters;
}

/// How far a list is looked at: to the end that counts, or that of the file where most of it is in use.
std::size_t Explanation::mostItems(const Target& list) const
{
    std::size_t most = 0;
    if (isCounted(list)) {
        return usedItems(list, merged_.record(list.pCategory->category.pKey));
    }
    for (const std::unique_ptr<MergedFile>& pLayer : layers_) {
        most = std::max(most, usedItems(list, pLayer->session().record(list.pCategory->category.pKey)));
    }
    return most;
}

void Explanation::walk(const Target& target)
{
    const std::vector<std::size_t> setters = settersOf(target);
    if (setters.size() < 2) {
        return;
    }
    const bool isRecords = target.pNode == nullptr || target.pNode->isRecord() || target.pNode->isGroup();
    if (!isRecords) {
        report(target, setters);
    } else if (target.rank > 0) {
        for (std::size_t i = 0; i < mostItems(target); ++i) {
            walk(PathTree::item(target, i));
        }
    } else {
        for (const PathNode& node : PathTree::membersOf(target)) {
            walk(PathTree::member(target, node));
        }
    }
}

/// In how many elements two files differ, of those that both set.
std::size_t Explanation::differentFrom(const Target& target, std::size_t left, std::size_t right) const
{
    const char* pKey = target.pCategory->category.pKey;
    const void* pLeft = layers_[left]->session().record(pKey);
    const void* pRight = layers_[right]->session().record(pKey);
    const bool areWhole =
        layers_[left]->count(target) == target.elements() && layers_[right]->count(target) == target.elements();
    std::size_t different = 0;
    for (std::size_t i = 0; i < target.elements(); ++i) {
        const Target element = elementAt(target, i);
        const std::byte* pLeftBytes = bytesOf(element, pLeft);
        const std::byte* pRightBytes = bytesOf(element, pRight);
        if (pLeftBytes == nullptr || pRightBytes == nullptr ||
            std::memcmp(pLeftBytes, pRightBytes, target.pNode->field.width) == 0) {
            continue;
        }
        const bool isText = target.pNode->field.element == QvDatabaseCatalogElement_Text;
        const bool areSet = areWhole || (layers_[left]->count(element) > 0 && layers_[right]->count(element) > 0);
        different += areSet && !(isText && textOf(element, pLeft) == textOf(element, pRight)) ? 1U : 0U;
    }
    return different;
}

/// Whether a file leaves nothing of those before in a category: a text's calibration.
bool Explanation::isCleared(const Target& target, std::size_t layer) const
{
    return target.pCategory->document == QvDatabaseCatalogDocument_Calibration &&
           layers_[layer]->input().form == Form::Json;
}

std::string Explanation::shownValue(const Target& target, std::size_t layer) const
{
    constexpr std::size_t kMost = 4;
    const Session& session = layers_[layer]->session();
    const std::size_t number = layers_[layer]->count(target);
    if (target.rank == 0 || (number <= kMost && number == target.elements())) {
        return jsonOf(target, session, Members::All);
    }
    return number == target.elements()
               ? counted(number, "value")
               : std::to_string(number) + " of " + std::to_string(target.elements()) + " values";
}

void Explanation::report(const Target& target, const std::vector<std::size_t>& setters)
{
    if (isNoValue(target)) {
        return;
    }
    const std::size_t winner = setters.back();
    std::vector<std::size_t> different;
    different.reserve(setters.size());
    for (const std::size_t setter : setters) {
        different.push_back(differentFrom(target, setter, winner));
    }
    const bool isSame = std::all_of(different.begin(), different.end(), [](std::size_t number) { return number == 0; });
    ++fields_;
    differing_ += isSame ? 0U : 1U;
    if (asJson_) {
        reportJson(target, setters, isSame);
        return;
    }
    std::string places;
    std::size_t column = 0;
    for (const std::size_t setter : setters) {
        places += (places.empty() ? "" : ", ") + layers_[setter]->place(target);
        column = std::max(column, layers_[setter]->place(target).size());
    }
    if (isSame) {
        std::printf("%s  %s, the same in %s\n", target.path.c_str(), shownValue(target, winner).c_str(),
                    places.c_str());
        return;
    }
    std::printf("%s\n", target.path.c_str());
    for (std::size_t i = 0; i < setters.size(); ++i) {
        std::string remark = setters[i] == winner ? "  wins" : "";
        if (setters[i] != winner && target.elements() > 1) {
            remark = "  " + std::to_string(different[i]) + (different[i] == 1 ? " differs" : " differ");
        }
        if (layers_[setters[i]]->count(target) > layers_[winner]->count(target) && !isCleared(target, winner)) {
            remark += "; what " + layers_[winner]->input().shown() + " doesn't set stays";
        }
        std::printf("    %-*s  %s%s\n", static_cast<int>(column), layers_[setters[i]]->place(target).c_str(),
                    shownValue(target, setters[i]).c_str(), remark.c_str());
    }
}

void Explanation::reportJson(const Target& target, const std::vector<std::size_t>& setters, bool isSame) const
{
    std::printf("%s\n    {\"path\": %s, \"same\": %s, \"winner\": %s, \"layers\": [", fields_ == 1 ? "" : ",",
                jsonText(target.path).c_str(), isSame ? "true" : "false",
                jsonText(layers_[setters.back()]->input().shown()).c_str());
    const char* pSeparator = "";
    for (const std::size_t setter : setters) {
        std::printf("%s{%s, \"set\": %zu, \"value\": %s}", pSeparator, layers_[setter]->jsonPlace(target).c_str(),
                    layers_[setter]->count(target), jsonOf(target, layers_[setter]->session(), Members::All).c_str());
        pSeparator = ", ";
    }
    std::printf("]}");
}

void Explanation::print(bool asJson)
{
    asJson_ = asJson;
    if (asJson) {
        std::printf("{\n  \"files\": [");
        for (const std::unique_ptr<MergedFile>& pLayer : layers_) {
            std::printf("%s%s", pLayer == layers_.front() ? "" : ", ", jsonText(pLayer->input().shown()).c_str());
        }
        std::printf("],\n  \"fields\": [");
    }
    for (const QvDatabaseCatalogCategory_t& key : tree_.keys()) {
        walk(PathTree::whole(tree_.category(key.pKey)));
    }
    if (asJson) {
        std::printf("%s],\n  \"replaced\": [", fields_ == 0 ? "" : "\n  ");
    }
    for (std::size_t i = 0; i < replaced_.size(); ++i) {
        const Replaced& each = replaced_[i];
        if (asJson) {
            std::printf("%s\n    {\"path\": %s, %s, %s}", i == 0 ? "" : ",", jsonText(each.path).c_str(),
                        each.jsonPlace.c_str(), each.json.c_str());
        } else {
            std::printf("%s\n    %s  %s\n", each.path.c_str(), each.place.c_str(), each.text.c_str());
        }
    }
    if (asJson) {
        std::printf("%s]\n}\n", replaced_.empty() ? "" : "\n  ");
    }
}

} // namespace qv::tools
